# shellcheck shell=bash
# Configuring the presets. Sourced by the scripts that build, which set `root` to the source folder.
: "${root:?}"

# configure PRESET [argument ...]: (re)configures build/PRESET. A build folder that was copied or moved here from
# another place is started afresh, for CMake refuses it otherwise.
configure() {
  local preset=$1 cache="$root/build/$1/CMakeCache.txt"
  shift
  local -a fresh=()
  if [[ -f $cache ]] && ! grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$root" "$cache"; then fresh=(--fresh); fi
  cmake "${fresh[@]}" -S "$root" --preset "$preset" "$@"
}

# is_configured PRESET: whether build/PRESET is ready to build, from this very source folder.
is_configured() {
  local folder="$root/build/$1"
  [[ -f $folder/build.ninja ]] && grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$root" "$folder/CMakeCache.txt"
}
