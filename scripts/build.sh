# shellcheck shell=bash
# Configures and builds a preset. To be sourced in the top folder.

# build_preset PRESET [TARGET...]: builds everything, or only these targets.
build_preset()
{
    local preset=$1 build_file=build/$1/build.ninja
    shift
    # Ninja itself runs CMake again when a CMakeLists.txt has changed.
    if [[ ! -e $build_file || CMakePresets.json -nt $build_file ]]; then
        cmake --preset "$preset"
    fi
    cmake --build --preset "$preset" --parallel "$(nproc)" ${1:+--target "$@"}
}
