#!/usr/bin/env bash
# Runs all checks except the tests and prints OK or FAIL for each, with its findings. Also reports the tests' coverage
# and the tree's figures. Fails if a check fails.
set -euo pipefail
root=$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")
# shellcheck source=scripts/packages.sh
source "$root/scripts/packages.sh"
# shellcheck source=scripts/build.sh
source "$root/scripts/build.sh"
cd -- "$root"

# Headers that other layers can't include; they may include the libraries' headers.
private_headers='^src/runtime/(desktop/(native|portal|wayland|x11)|toolkit/(accessibility|widgets))/|_p\.h$'
# The folders with those libraries' headers.
private_libraries='/(qt6|boost|pipewire-0.3|spa-0.2|xcb|X11)/'

# Prints the files of the work tree that match the patterns, each followed by a zero byte: the files in git, and new
# ones.
files() {
  local file
  git ls-files -z --cached --others --exclude-standard -- "$@" | while IFS= read -r -d '' file; do
    [[ ! -e $file ]] || printf '%s\0' "$file"
  done
}

# Without precompiled headers, so that each file must include what it needs; clang-tidy can't read those of g++ either.
check_build() {
  configure release -DTAVRELKIN_TESTS=ON -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON
  cmake --build build/release
}

check_format() { files '*.cpp' '*.h' | xargs -0 --no-run-if-empty clang-format --dry-run --Werror; }

check_tidy() {
  local here
  # shellcheck disable=SC2001  # The replacement uses the match, which ${root//} can't.
  here=$(sed 's/[][\\.*^$+?(){}|]/\\&/g' <<<"$root")
  run-clang-tidy -p build/release -j "$(nproc)" -quiet "^$here/(src|tests|fakes|driver|soak|fuzz)/" 2>&1 |
    sed -e 's/\x1b\[[0-9;]*m//g' -e 's|/build/release/layers/[^/]*/|/src/|' \
      -e '/^clang-tidy/d' -e '/warnings\? .*generated/d'
}

check_scripts() { files '*.sh' .ci/run | xargs -0 shellcheck --external-sources; }

check_desktop() {
  desktop-file-validate data/tavrelkin.desktop
  appstreamcli validate --no-net --pedantic data/*.metainfo.xml
  mandoc -T lint -W warning data/tavrelkin.1
}

# check_header HEADER: whether the header compiles with nothing before it. A public header must not reach a private
# library, not even through another header.
check_header() {
  local header=$1 dependencies reached
  local -a flags
  read -ra flags <<<"$(pkg-config --cflags Qt6Widgets Qt6DBus libpipewire-0.3 xcb)"
  dependencies=$(g++ -std=c++20 -fPIC -Wall -Wextra -Werror "${flags[@]}" -I src -fsyntax-only -MD -MF /dev/stdout \
    -x c++ - <<<"#include \"${header#src/}\"") || return 1
  [[ ! $header =~ $private_headers ]] || return 0
  reached=$(grep -oE "[^ ]*${private_libraries}[^ ]*" <<<"$dependencies" | head -n 1 || true)
  [[ -n $reached ]] || return 0
  echo "$header is public, but reaches $reached"
  return 1
}

check_headers() {
  export -f check_header
  export private_headers private_libraries
  # shellcheck disable=SC2016  # The inner shell expands this.
  files 'src/*.h' | xargs -0 --no-run-if-empty -n 1 -P "$(nproc)" bash -c 'check_header "$1"' check_header
}

# includes HEADER FLAGS...: whether a source file that is compiled with the flags can include the header.
includes() { g++ -std=c++20 "${@:2}" -fsyntax-only -x c++ - <<<"#include \"$1\"" 2>/dev/null; }

# With the include path of the color core, public headers of lower layers must compile, and others must not.
check_floors() {
  local header status=0
  local -a path
  mapfile -t path < <(python3 -c '
import json, shlex
for entry in json.load(open("build/release/compile_commands.json")):
    if entry["file"].endswith("/color/zrXYZ.cpp"):
        print(*(word for word in shlex.split(entry["command"]) if word.startswith("-I")), sep="\n")')
  includes runtime/core/drawing/Color.h "${path[@]}" || { echo "The color core sees no core" && status=1; }
  for header in runtime/toolkit/Window.h runtime/toolkit/widgets/Drags.h runtime/core/scheduling/Delivery.h \
    runtime/desktop/x11/X11ScreenReader.h runtime/desktop/native/NativeDesktop.h; do
    [[ -e src/$header ]] || { echo "$header has moved" && status=1; }
    ! includes "$header" "${path[@]}" || { echo "$header is open to the color core" && status=1; }
  done
  return "$status"
}

# Runs the unit and window tests for the report on their coverage, which has no limit that could fail.
check_coverage() {
  configure coverage -DTAVRELKIN_TESTS=ON
  cmake --build build/coverage
  find build/coverage -name '*.gcda' -delete
  QT_QPA_PLATFORM=offscreen ctest --test-dir build/coverage --parallel "$(nproc)"
}

report_coverage() {
  gcovr --root . --filter src/ --object-directory build/coverage --csv - | tail -n +2 |
    awk -F, '{ split($1, folder, "/"); layer = folder[2] ~ /\./ ? "main" : folder[2]
               if (layer == "runtime") layer = layer "/" folder[3]
               lines[layer] += $2; reached[layer] += $3; lines["all"] += $2; reached["all"] += $3 }
             END { for (layer in lines) printf "      %-16s %5.1f %% of %d lines\n", layer,
                   100 * reached[layer] / lines[layer], lines[layer] }' | sort
}

failures=0
# check NAME FUNCTION: runs the function in a subshell, since `set -e` is off inside a condition.
check() {
  local output status=0
  set +e
  output=$(set -e; "$2" 2>&1)
  status=$?
  set -e
  if ((status == 0)); then
    echo "OK    $1"
    return
  fi
  failures=$((failures + 1))
  echo "FAIL  $1"
  printf '%s\n' "$output"
}

check_compositor() { tests/wayland.sh; }

require_packages build run test check
check "build without warnings" check_build
check "format (clang-format)" check_format
check "headers compile alone; public ones hide the libraries" check_headers
check "floors: forbidden includes do not compile" check_floors
check "scripts (shellcheck)" check_scripts
check "desktop entry, metadata and man page" check_desktop
check "code (clang-tidy)" check_tidy
check "on a real Wayland compositor" check_compositor
check "unit and window tests, for their coverage" check_coverage
report_coverage
echo "Figures of the source tree"
scripts/report.py
((failures == 0))
