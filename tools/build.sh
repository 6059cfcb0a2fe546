# Configuring and building by preset. Meant to be sourced by bash, in the project's folder.

# build_preset NAME [cmake arguments]: the build lies in build/NAME. ccache is used where it is.
build_preset() {
    local preset=$1
    shift
    if [ -z "${CMAKE_CXX_COMPILER_LAUNCHER:-}" ] && command -v ccache >/dev/null; then
        export CMAKE_CXX_COMPILER_LAUNCHER=ccache
    fi
    # A build folder that came here from another place would be refused.
    local cache=build/$preset/CMakeCache.txt
    if [ -f "$cache" ] && ! grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$PWD" "$cache"; then
        rm -rf "build/$preset"
    fi
    cmake --preset "$preset" --log-level=NOTICE "$@"
    cmake --build --preset "$preset" -j "$(nproc)"
}
