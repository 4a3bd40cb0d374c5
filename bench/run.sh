#!/usr/bin/env bash
# Builds the release with the benchmarks, measures, and writes the machine and its figures to docs/figures.md. Installs
# what that takes, but none of the other programs that it measures where they are. Takes some five minutes, in which the
# machine should have nothing else to do.
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

Measured by `bench/run.sh`, which writes this page: the program on a virtual X server of its own, driven by pointer and
keys as a user would; CPU from the kernel's books, in percent of one core. The bare window is the least that a Qt window
with a menu bar takes, run in turns with the program.

END
  echo "${processor:-$(uname -m)}, $(nproc) cores; Linux ${kernel%%-*}; Qt $(pkgconf --modversion Qt6Widgets);" \
    "Xvfb $(dpkg-query --show --showformat='${Version}' xvfb 2>/dev/null || echo "of unknown version")"
  echo
  echo "| What | Wanted | Measured |"
  echo "| --- | --- | --- |"
  local bench
  for bench in tool_window_bench swatch_bench dichromat_bench desktop_bench; do "$build/bench/$bench"; done
  cat <<'END'

CPU figures vary from run to run with what else the machine does, those of the pointer in circles by a third.

Writing a small swatch file is the file system's work: the rename that replaces the old file has the data written before
it, which takes most of the time on an ext4 disk. In a folder in memory the same write takes a fraction of it.

A cast screen is one that a played desktop sends, so that these rows show the program's own share.

## On Wayland

Measured by `tests/wayland.sh --figures` on a headless compositor that draws in software, with one monitor of 1280 by
1024. Where a figure includes the compositor's share, that is most of it.

| What | Wanted | Measured |
| --- | --- | --- |
END
  "$root/tests/wayland.sh" --figures
  cat <<'END'

## Beside other programs

All are measured in the same way, from outside, with a window manager and without a session bus. Start is the time until
the screen shows what it will show at rest. A dash stands where a program doesn't follow the pointer, or only once it has
been told to pick.

END
  "$build/bench/peers_bench"
}

# A run that fails leaves the page as it was.
page="$root/build/figures.md"
measure | tee "$page"
mv -- "$page" "$root/docs/figures.md"
