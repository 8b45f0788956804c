# SPDX-License-Identifier: MIT
# Icons are drawn as SVG and rendered at build time; no image lies in the repository.

set(KELPA_RENDERICONS_EXECUTABLE "" CACHE FILEPATH
    "A ready rendericons program; needed when cross-compiling, else built here")
set(KELPA_ICON_SIZES 12 16 24 32 48 64)

# kelpa_add_icons(<target> PREFIX <path> [FOLDER <dir>] [SIZES ...] [ICONS ...] [ICOS ...]): renders icons into
# the resources of a target. Each icon is an <name>.svg of the folder (default: icons) or a pair name=svg when
# the file is called otherwise. It gives <name>.png of 32 pixels and <name>_<size>.png for each size, all with
# the variants "_d" (disabled), "_2x" (double size) and "_d_2x". ICOS gives <name>.ico of 16 to 256 pixels.
function(kelpa_add_icons target)
    cmake_parse_arguments(ARG "" "PREFIX;FOLDER" "SIZES;ICONS;ICOS" ${ARGN})
    if(NOT ARG_PREFIX OR ARG_UNPARSED_ARGUMENTS)
        message(FATAL_ERROR "kelpa_add_icons(${target}): no PREFIX, or unknown: ${ARG_UNPARSED_ARGUMENTS}")
    endif()
    if(NOT ARG_FOLDER)
        set(ARG_FOLDER icons)
    endif()
    string(MAKE_C_IDENTIFIER "${target}${ARG_PREFIX}" id)
    set(folder ${CMAKE_CURRENT_BINARY_DIR}/${id})
    set(code ${CMAKE_CURRENT_BINARY_DIR}/${id}.cpp)

    set(arguments)
    set(sources)
    foreach(kind ICONS ICOS)
        foreach(icon ${ARG_${kind}})
            string(REGEX REPLACE "=.*" "" name ${icon})
            string(REGEX REPLACE ".*=" "" source ${icon})
            cmake_path(ABSOLUTE_PATH ARG_FOLDER OUTPUT_VARIABLE source_folder)
            list(APPEND sources ${source_folder}/${source}.svg)
            if(kind STREQUAL ICOS)
                list(APPEND arguments --ico)
            endif()
            list(APPEND arguments ${name}=${source_folder}/${source}.svg)
        endforeach()
    endforeach()

    if(KELPA_RENDERICONS_EXECUTABLE)
        set(tool ${KELPA_RENDERICONS_EXECUTABLE})
    else()
        set(tool rendericons)
    endif()
    string(REPLACE ";" "," sizes "${ARG_SIZES}")
    add_custom_command(OUTPUT ${code}
        COMMAND ${tool} --output ${folder} --prefix ${ARG_PREFIX} --sizes=${sizes} ${arguments}
        COMMAND Qt6::rcc --name ${id} --output ${code} ${folder}/icons.qrc
        DEPENDS ${tool} ${sources}
        COMMENT "Rendering the icons of ${ARG_PREFIX}"
        VERBATIM)
    set_source_files_properties(${code} PROPERTIES SKIP_AUTOGEN ON)
    target_sources(${target} PRIVATE ${code})
endfunction()
