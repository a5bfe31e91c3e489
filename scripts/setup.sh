# SPDX-License-Identifier: MIT
# shellcheck shell=bash disable=SC2034,SC2154
#
# What ./run, ./test, bench/compare and .ci/run share: see that the packages are there, and build.
# To be sourced, after `root` (the repository) and `program` (how the user called it) are set.
# Everything is said on stderr: stdout belongs to the program that is run in the end.

# Tools as command:package; libraries as packages.
setup_tools_run=(cmake:cmake ninja:ninja-build c++:g++ pkg-config:pkg-config)
setup_libraries_run=(libsqlite3-dev libcli11-dev nlohmann-json3-dev libutf8proc-dev)
setup_tools_test=(g++:g++ sqlite3:sqlite3 python3:python3)
setup_libraries_test=(libgtest-dev libgmock-dev)
setup_tools_ci=(clang++:clang clang-tidy:clang-tidy clang-format:clang-format
    readelf:binutils nm:binutils)
setup_libraries_ci=(libbenchmark-dev)
setup_tools_compare=(g++:g++ python3:python3)
setup_libraries_compare=(qt6-base-dev libgtk-4-dev python3-matplotlib)

setup_fail() {
    printf '%s: %s\n' "$program" "$*" >&2
    exit 1
}

# setup_missing GROUP...: fills `missing` with the packages that are not installed.
setup_missing() {
    local group tool library found
    local libraries=()
    missing=()
    for group in "$@"; do
        local -n tools_of="setup_tools_$group" libraries_of="setup_libraries_$group"
        for tool in "${tools_of[@]}"; do
            command -v "${tool%%:*}" >/dev/null || missing+=("${tool#*:}")
        done
        libraries+=("${libraries_of[@]}")
    done
    # Elsewhere than on Debian and its kin, CMake is who finds out that a library is missing.
    command -v dpkg-query >/dev/null || return 0
    found=$(dpkg-query -W -f='${db:Status-Status} ${Package}\n' "${libraries[@]}" 2>/dev/null)
    for library in "${libraries[@]}"; do
        [[ $'\n'$found$'\n' == *$'\n'"installed $library"$'\n'* ]] || missing+=("$library")
    done
}

# As root, or as somebody who may become root without being asked.
setup_as_root() {
    if ((EUID == 0)); then
        "$@"
    else
        sudo -n "$@"
    fi
}

# The lists of packages are fetched only if those at hand do not do. Two set-ups at a time (two
# clones, say) wait for one another.
setup_apt() {
    local apt=(env DEBIAN_FRONTEND=noninteractive apt-get -o DPkg::Lock::Timeout=600)
    local install=("${apt[@]}" install -y --no-install-recommends "${missing[@]}")
    setup_as_root "${install[@]}" </dev/null >&2 && return
    printf '%s: fetching the lists of packages\n' "$program" >&2
    setup_as_root "${apt[@]}" update </dev/null >&2 &&
        setup_as_root "${install[@]}" </dev/null >&2
}

# setup_packages GROUP...: installs what is missing, or says what to install and stops.
setup_packages() {
    local missing
    setup_missing "$@"
    ((${#missing[@]})) || return 0
    local advice="missing packages. Please install them, for instance as root with
    apt-get install ${missing[*]}"
    command -v apt-get >/dev/null || setup_fail "$advice"
    ((EUID == 0)) || sudo -n true 2>/dev/null || setup_fail "$advice"
    printf '%s: installing %s\n' "$program" "${missing[*]}" >&2
    local packages_lock
    exec {packages_lock}</var/lib/dpkg
    flock "$packages_lock"
    setup_missing "$@"
    ((${#missing[@]} == 0)) || setup_apt || setup_fail "$advice"
    exec {packages_lock}<&-
}

# setup_configure PRESET: runs CMake where that has not been done, or was done for another place
# (a folder that was copied or moved).
setup_configure() {
    local folder=$root/build/$1
    if [[ -f $folder/build.ninja ]] &&
        grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$root" "$folder/CMakeCache.txt"; then
        return 0
    fi
    rm -rf "${folder:?}/CMakeCache.txt" "$folder/CMakeFiles" "$folder/build.ninja"
    local launcher=()
    command -v ccache >/dev/null && launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
    printf '%s: configuring build/%s\n' "$program" "$1" >&2
    (cd "$root" && cmake --preset "$1" "${launcher[@]}") </dev/null >&2
}

# setup_build PRESET [TARGET...]: brings a build folder up to date; silent if it is. Two builds of
# one folder wait for one another.
setup_build() {
    local preset=$1 folder=$root/build/$1 build_lock
    shift
    mkdir -p "$folder" || setup_fail "cannot write to $root/build"
    exec {build_lock}>"$folder/.lock"
    ! command -v flock >/dev/null || flock "$build_lock"
    setup_configure "$preset" || setup_fail "could not configure build/$preset"
    if [[ $(ninja -C "$folder" -n "$@" 2>&1) != *'no work to do'* ]]; then
        printf '%s: building build/%s\n' "$program" "$preset" >&2
        ninja -C "$folder" "$@" </dev/null >&2 || setup_fail "build/$preset does not build"
    fi
    exec {build_lock}>&-
}
