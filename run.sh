#!/usr/bin/env bash
# Builds Tavrelkin and starts it; installs what that takes. With neither DISPLAY nor WAYLAND_DISPLAY set it runs on a
# virtual display of its own and leaves a screenshot in build/tavrelkin.png. The exit status is the program's.
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

# The tests share this build folder: whoever built them keeps them, and nobody else needs their packages.
is_configured release || configure release -DTAVRELKIN_TESTS=OFF
cmake --build "$root/build/release" --target tavrelkin

if [[ -n ${DISPLAY:-}${WAYLAND_DISPLAY:-} ]]; then exec "$program"; fi
run_headless "$program" "$root/build/tavrelkin.png"
