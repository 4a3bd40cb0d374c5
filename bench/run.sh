#!/usr/bin/env bash
# Builds the release with the benchmarks, measures, and prints the machine and a table of the figures, in Markdown.
# Installs what that takes. Some three minutes, in which the machine should have nothing else to do.
set -euo pipefail
root=$(dirname -- "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")")
# shellcheck source=scripts/packages.sh
source "$root/scripts/packages.sh"
# shellcheck source=scripts/build.sh
source "$root/scripts/build.sh"
build="$root/build/bench"

# Nothing of the desktop that this runs on may matter.
export LANG=C.UTF-8 LC_ALL=C.UTF-8 DBUS_SESSION_BUS_ADDRESS=disabled:
unset DISPLAY WAYLAND_DISPLAY XAUTHORITY LANGUAGE "${!QT_@}"
export XDG_RUNTIME_DIR="$root/build/runtime"

require_packages build run test bench >&2
mkdir -p -m 700 -- "$root/build/runtime"
configure bench >&2
cmake --build "$build" --target tavrelkin tool_window_bench swatch_bench dichromat_bench desktop_bench >&2

processor=$(sed -n 's/^model name\s*: //p' /proc/cpuinfo | head -n 1)
kernel=$(uname -r)
echo "${processor:-$(uname -m)}, $(nproc) cores; Linux ${kernel%%-*}; Qt $(pkgconf --modversion Qt6Widgets);" \
  "Xvfb $(dpkg-query --show --showformat='${Version}' xvfb 2>/dev/null || echo "of unknown version")"
echo
echo "| What | Wanted | Measured |"
echo "| --- | --- | --- |"
"$build/bench/tool_window_bench"
"$build/bench/swatch_bench"
"$build/bench/dichromat_bench"
"$build/bench/desktop_bench"
