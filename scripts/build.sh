# shellcheck shell=bash
# Configures the presets. The scripts that build source this file and set `root` to the source folder.
: "${root:?}"

# configure PRESET [argument ...]: (re)configures build/PRESET. Starts afresh if the build folder was copied or moved
# from another place, since CMake refuses such a folder.
configure() {
  local preset=$1 cache="$root/build/$1/CMakeCache.txt"
  shift
  local -a fresh=()
  if [[ -f $cache ]] && ! grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$root" "$cache"; then fresh=(--fresh); fi
  cmake "${fresh[@]}" -S "$root" --preset "$preset" "$@"
}

# is_configured PRESET: whether build/PRESET is ready to build from this source folder.
is_configured() {
  local folder="$root/build/$1"
  [[ -f $folder/build.ninja ]] && grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$root" "$folder/CMakeCache.txt"
}
