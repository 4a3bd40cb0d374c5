#!/usr/bin/env bash
# tests/wayland.sh [--figures]: tests the built program on a real compositor with its portal, without a screen. Prints
# for each case OK, or the difference. With --figures it measures what only such a session shows and prints rows of a
# Markdown table. Installs and builds what it needs. Saves pictures in build/wayland. Fails if a case fails or can't run
# here.
set -euo pipefail
root=$(dirname -- "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")")
# shellcheck source=scripts/packages.sh
source "$root/scripts/packages.sh"
# shellcheck source=scripts/build.sh
source "$root/scripts/build.sh"
program="$root/build/release/tavrelkin"
pictures="$root/build/wayland"
in_session="$root/driver/compositor/session.sh"
export PYTHONPATH="$root/driver/compositor"

require_packages build run wayland compositor >&2
is_configured release || configure release -DTAVRELKIN_TESTS=OFF >&2
cmake --build "$root/build/release" --target tavrelkin >&2
mkdir -p -- "$pictures"

# Only Debian's own interpreter has the bindings.
if [[ ${1:-} == --figures ]]; then
  exec "$in_session" --monitor 1280x1024 /usr/bin/python3 "$root/bench/compositor_figures.py" "$program"
fi
status=0
"$in_session" --monitor 1024x640 --monitor 800x480 \
  /usr/bin/python3 "$root/tests/wayland/checks.py" "$program" "$pictures" || status=1
"$in_session" --monitor 1024x640 /usr/bin/python3 "$root/tests/wayland/offers.py" "$program" || status=1
exit "$status"
