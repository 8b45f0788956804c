# SPDX-License-Identifier: MIT
# Settings every target shares, and the two kinds of target: plug-ins and tests.

include(CTest)
include(GNUInstallDirs)

option(KELPA_WERROR "Treat compiler warnings as errors" OFF)
option(KELPA_WEB "Build the main window and the plug-ins, which need Qt's web and SVG modules" ON)
set(KELPA_SANITIZE "" CACHE STRING "Sanitizers to build with, such as address,undefined")

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_AUTOMOC ON)
set(CMAKE_AUTORCC ON)
set(CMAKE_AUTOUIC ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

# The build tree has the shape of the installed tree: everything lies in the folder of the program.
set(KELPA_PROGRAM_DIR ${CMAKE_BINARY_DIR}/kelpastudio)
set(KELPA_PLUGIN_DIR ${KELPA_PROGRAM_DIR}/plugins)
set(KELPA_INSTALL_DIR ${CMAKE_INSTALL_LIBDIR}/kelpastudio)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${KELPA_PROGRAM_DIR})
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${KELPA_PROGRAM_DIR})
set(CMAKE_BUILD_WITH_INSTALL_RPATH ON)
set(CMAKE_INSTALL_RPATH "$ORIGIN")

add_compile_definitions(
    QT_DISABLE_DEPRECATED_BEFORE=0x060200
    QT_MESSAGELOGCONTEXT
    QT_NO_CAST_FROM_BYTEARRAY
    QT_NO_CAST_TO_ASCII
    QT_NO_FOREACH)

if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
    add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor)
    if(KELPA_WERROR)
        add_compile_options(-Werror)
    endif()
    if(KELPA_SANITIZE)
        add_compile_options(-fsanitize=${KELPA_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=undefined)
        add_link_options(-fsanitize=${KELPA_SANITIZE})
    endif()
endif()

# kelpa_add_plugin(<name> SOURCES ... LIBRARIES ...): a plug-in that links the core, in the plug-in folder of
# both trees. Its metadata is <name>.json.
function(kelpa_add_plugin name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LIBRARIES" ${ARGN})
    add_library(${name} SHARED ${ARG_SOURCES})
    target_include_directories(${name} PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
    target_link_libraries(${name} PRIVATE core ${ARG_LIBRARIES})
    kelpa_place_plugin(${name})
endfunction()

# Puts a library where the framework looks for plug-ins.
function(kelpa_place_plugin name)
    set_target_properties(${name} PROPERTIES
        LIBRARY_OUTPUT_DIRECTORY ${KELPA_PLUGIN_DIR}
        RUNTIME_OUTPUT_DIRECTORY ${KELPA_PLUGIN_DIR}
        INSTALL_RPATH "$ORIGIN;$ORIGIN/..")
    install(TARGETS ${name}
        LIBRARY DESTINATION ${KELPA_INSTALL_DIR}/plugins
        RUNTIME DESTINATION ${KELPA_INSTALL_DIR}/plugins)
endfunction()

# Qt's test library without the two definitions that differ in each folder (none of our tests asks for its folder):
# with them no test could use the compiled headers of another target.
function(kelpa_find_qt_test)
    find_package(Qt6 REQUIRED COMPONENTS Test)
    set_property(TARGET Qt6::Test PROPERTY INTERFACE_COMPILE_DEFINITIONS QT_TESTLIB_LIB)
endfunction()

# kelpa_add_test(<name> SOURCES ... LIBRARIES ... [RUN_SERIAL] [ON_DISPLAY]): one QtTest program, run off screen
# in a folder of its own that stands for the home, settings and temporary folders. ON_DISPLAY: with the real
# windows of the platform, on an X display of its own with a window manager. A warning that it does not expect
# fails it.
function(kelpa_add_test name)
    cmake_parse_arguments(ARG "RUN_SERIAL;ON_DISPLAY" "" "SOURCES;LIBRARIES" ${ARGN})
    kelpa_find_qt_test()
    add_executable(${name} ${ARG_SOURCES})
    target_include_directories(${name} PRIVATE ${CMAKE_CURRENT_SOURCE_DIR} ${CMAKE_SOURCE_DIR}/tests)
    target_link_libraries(${name} PRIVATE Qt6::Test ${ARG_LIBRARIES})
    if("coretest" IN_LIST ARG_LIBRARIES OR "updatetest" IN_LIST ARG_LIBRARIES)
        target_precompile_headers(${name} REUSE_FROM coretest)
    endif()
    set_target_properties(${name} PROPERTIES
        RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests
        BUILD_RPATH "${KELPA_PROGRAM_DIR};${KELPA_PLUGIN_DIR}"
        BUILD_WITH_INSTALL_RPATH OFF)
    set(home ${CMAKE_BINARY_DIR}/tests/home/${name})
    file(MAKE_DIRECTORY ${home}/run)
    file(CHMOD ${home}/run PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)
    set(platform offscreen)
    set(command ${name}) # where that runs under an emulator, it brings the display
    if(ARG_ON_DISPLAY AND WIN32)
        set(platform windows)
    elseif(ARG_ON_DISPLAY)
        set(platform xcb)
        set(command ${CMAKE_SOURCE_DIR}/tests/support/with_display.sh $<TARGET_FILE:${name}>)
    endif()
    # All but "This plugin does not support ..." and "No suitable graphics backend", which the platform says.
    set(unexpected "QWARN  : [^\n]*\\) ([^TN]|T[^h]|N[^o])" "QCRITICAL:" "QSYSTEM:" "QFATAL :")
    add_test(NAME ${name} COMMAND ${command})
    set_tests_properties(${name} PROPERTIES
        TIMEOUT 300
        RUN_SERIAL ${ARG_RUN_SERIAL}
        FAIL_REGULAR_EXPRESSION "${unexpected}"
        ENVIRONMENT "QT_QPA_PLATFORM=${platform};QT_ENABLE_HIGHDPI_SCALING=0;HOME=${home};XDG_CONFIG_HOME=${home}/.config;XDG_DATA_HOME=${home}/.local/share;XDG_RUNTIME_DIR=${home}/run;TMPDIR=${home}/run;LC_ALL=C.UTF-8")
    if(ARG_ON_DISPLAY)
        # The keyboard library of X duplicates strings of given length, which strict checks take for an overrun.
        set_property(TEST ${name} APPEND PROPERTY
            ENVIRONMENT_MODIFICATION "ASAN_OPTIONS=string_append::strict_string_checks=0")
    endif()
endfunction()

# kelpa_test_in_memory(<test>): its temporary files lie in memory, in a folder of its own, where the system has
# such a place. For tests that save thousands of times and would wait for the disk each time.
function(kelpa_test_in_memory name)
    if(EXISTS /dev/shm)
        string(SHA1 id "${CMAKE_BINARY_DIR}/${name}")
        string(SUBSTRING "${id}" 0 12 id)
        file(MAKE_DIRECTORY /dev/shm/kelpa-${id})
        set_property(TEST ${name} APPEND PROPERTY
            ENVIRONMENT_MODIFICATION "TMPDIR=set:/dev/shm/kelpa-${id}")
    endif()
endfunction()
