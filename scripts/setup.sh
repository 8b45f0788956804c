# SPDX-License-Identifier: MIT
# shellcheck shell=bash
# Sourced by ./run, ./test and the other scripts: packages, configuring and building. Messages go to stderr.

kelpa_root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

kelpa_say() { printf '%s\n' "$@" >&2; }
kelpa_fail() { kelpa_say "$@"; exit 1; }

kelpa_package_lists=("$kelpa_root/packages.txt")
kelpa_packages() { sed 's/#.*//' "${kelpa_package_lists[@]}" | xargs -n 1; }

# The packages of the list that are not installed.
kelpa_missing_packages()
{
    comm -23 <(kelpa_packages | sort) \
        <(dpkg-query -W -f '${db:Status-Status} ${Package}\n' 2>/dev/null | sed -n 's/^installed //p' | sort)
}

kelpa_unsupported()
{
    kelpa_say "This is not a system that packages can be installed on from here (Debian 12)." \
        "Install a C++20 compiler, CMake 3.22 or newer, Ninja and Qt 6.2 or newer, that is, what these" \
        "Debian packages hold:" "$(kelpa_packages | xargs | fold -s -w 100 | sed 's/^/    /')" \
        "Then go on with" "    cmake --preset release" "    cmake --build --preset release" \
        "    ctest --preset release" "    build/release/kelpastudio/kelpastudio examples/<name>.kelpa"
    exit 1
}

kelpa_check_system()
{
    local id
    id=$(. /etc/os-release 2>/dev/null && printf '%s %s' "${ID:-}" "${VERSION_ID:-}") || id=
    case $id in
        "debian 12") ;;
        "ubuntu 24.04") kelpa_say "Note: the list of packages is untested on Ubuntu 24.04." ;;
        *) kelpa_unsupported ;;
    esac
}

# Calls apt only when something is missing.
kelpa_install_packages()
{
    local missing sudo=()
    mapfile -t missing < <(kelpa_missing_packages)
    ((${#missing[@]})) || return 0
    if ((EUID != 0)); then
        command -v sudo >/dev/null \
            || kelpa_fail "These packages are missing; install them as root, then try again:" \
                "    apt-get install ${missing[*]}"
        sudo=(sudo)
    fi
    kelpa_say "Installing: ${missing[*]}"
    "${sudo[@]}" apt-get update -q </dev/null >&2
    "${sudo[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -q -y --no-install-recommends "${missing[@]}" </dev/null >&2
}

# kelpa_build PRESET [TARGET...]: everything when no target is named.
kelpa_build()
{
    local preset=$1 launcher=()
    shift
    # What the compiler cache needs to know of precompiled headers.
    export CCACHE_SLOPPINESS=pch_defines,time_macros
    command -v ccache >/dev/null && launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
    (cd "$kelpa_root" && cmake --preset "$preset" "${launcher[@]}" \
        && cmake --build --preset "$preset" --parallel "$(nproc)" ${1:+--target "$@"}) >&2
}
