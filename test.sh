#!/usr/bin/env bash
# Builds everything twice, as users run it and under the sanitizers, and runs all tests; installs the packages that it
# needs. Fails if a test fails. The last lines have the numbers of tests and failures.
set -euo pipefail
root=$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")
# shellcheck source=scripts/packages.sh
source "$root/scripts/packages.sh"
# shellcheck source=scripts/build.sh
source "$root/scripts/build.sh"

# The surrounding desktop must neither matter nor be changed.
export LANG=C.UTF-8 LC_ALL=C.UTF-8 DBUS_SESSION_BUS_ADDRESS=disabled:
unset DISPLAY WAYLAND_DISPLAY XAUTHORITY LANGUAGE "${!QT_@}"
export XDG_RUNTIME_DIR="$root/build/runtime" UBSAN_OPTIONS=print_stacktrace=1

require_packages build run test
mkdir -p -- "$XDG_RUNTIME_DIR"
chmod 700 -- "$XDG_RUNTIME_DIR"
for preset in release sanitized; do
  configure "$preset" -DTAVRELKIN_TESTS=ON
  cmake --build "$root/build/$preset"
done

# One run covers both builds, so that one count includes everything.
echo 'subdirs("release" "sanitized")' >"$root/build/CTestTestfile.cmake"
exec ctest --test-dir "$root/build" --output-on-failure --no-tests=error --timeout 300 --parallel "$(nproc)"
