#!/usr/bin/env bash
# Builds the release with the benchmarks, measures, and writes the machine and its figures to docs/figures.md. Installs
# the packages that it needs, but not the other programs, which are measured if they are installed. It takes some five
# minutes, and the machine should have nothing else to do.
set -euo pipefail
root=$(dirname -- "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")")
# shellcheck source=scripts/packages.sh
source "$root/scripts/packages.sh"
# shellcheck source=scripts/build.sh
source "$root/scripts/build.sh"
build="$root/build/bench"

# The surrounding desktop must not matter.
export LANG=C.UTF-8 LC_ALL=C.UTF-8 DBUS_SESSION_BUS_ADDRESS=disabled:
unset DISPLAY WAYLAND_DISPLAY XAUTHORITY LANGUAGE "${!QT_@}"
export XDG_RUNTIME_DIR="$root/build/runtime"

require_packages build run test bench >&2
mkdir -p -- "$root/build/runtime"
chmod 700 -- "$root/build/runtime"
configure bench >&2
cmake --build "$build" >&2

measure() {
  local processor kernel
  processor=$(sed -n 's/^model name\s*: //p' /proc/cpuinfo | head -n 1)
  kernel=$(uname -r)
  cat <<'END'
# Figures

`bench/run.sh` measures these figures and writes this page. It runs the program on a separate virtual X server and
drives it with pointer and keys as a user would. CPU is in percent of one core, as counted by the kernel. The bare
window is a minimal Qt window with a menu bar, which runs in turns with the program.

END
  echo "${processor:-$(uname -m)}, $(nproc) cores; Linux ${kernel%%-*}; Qt $(pkgconf --modversion Qt6Widgets);" \
    "Xvfb $(dpkg-query --show --showformat='${Version}' xvfb 2>/dev/null || echo "of unknown version")"
  echo
  echo "| What | Wanted | Measured |"
  echo "| --- | --- | --- |"
  local bench
  for bench in tool_window_bench swatch_bench dichromat_bench desktop_bench; do "$build/bench/$bench"; done
  cat <<'END'

CPU figures vary from run to run with the other work of the machine; those of the pointer in circles vary by a third.

The file system takes most of the time of writing a small swatch file: on an ext4 disk, the rename that replaces the old
file waits until the data are written. In a folder in memory the same write takes a fraction of the time.

A played desktop sends the frames of a cast screen, so these rows show the program's own share.

## On Wayland

`tests/wayland.sh --figures` measures these rows on a headless compositor that draws in software, with one monitor of
1280 by 1024. Where a figure includes the compositor's share, that share is the largest part of it.

| What | Wanted | Measured |
| --- | --- | --- |
END
  "$root/tests/wayland.sh" --figures
  cat <<'END'

## Beside other programs

All programs are measured in the same way, from outside, with a window manager and without a session bus. The start ends
when the screen shows the program's final look. A dash means that the program does not follow the pointer, or only after
a command to pick a colour.

END
  "$build/bench/peers_bench"
}

# A failed run leaves the page unchanged.
page="$root/build/figures.md"
measure | tee "$page"
mv -- "$page" "$root/docs/figures.md"
