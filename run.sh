#!/usr/bin/env bash
# Builds Tavrelkin and starts it; installs the packages that it needs. If neither DISPLAY nor WAYLAND_DISPLAY is set, it
# runs on a virtual display and saves a screenshot in build/tavrelkin.png. The exit status is the program's.
set -euo pipefail
root=$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")
# shellcheck source=scripts/packages.sh
source "$root/scripts/packages.sh"
# shellcheck source=scripts/build.sh
source "$root/scripts/build.sh"
# shellcheck source=scripts/headless.sh
source "$root/scripts/headless.sh"
program="$root/build/release/tavrelkin"

purposes=(build run)
[[ -z ${WAYLAND_DISPLAY:-} ]] || purposes+=(wayland)
[[ -n ${DISPLAY:-}${WAYLAND_DISPLAY:-} ]] || purposes+=(display)
require_packages "${purposes[@]}"

# The tests use the same build folder. If they are configured they stay; otherwise nobody needs their packages.
is_configured release || configure release -DTAVRELKIN_TESTS=OFF
cmake --build "$root/build/release" --target tavrelkin

if [[ -n ${DISPLAY:-}${WAYLAND_DISPLAY:-} ]]; then exec "$program"; fi
run_headless "$program" "$root/build/tavrelkin.png"
