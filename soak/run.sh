#!/usr/bin/env bash
# soak/run.sh [SECONDS [SEED]]: uses the program at random for that time, or for an hour, in two builds at once: as
# users run it, and under the sanitizers. Prints the seed, which repeats the same choices, and the resources that the
# program holds.
set -euo pipefail
root=$(dirname -- "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")")
# shellcheck source=scripts/packages.sh
source "$root/scripts/packages.sh"
# shellcheck source=scripts/build.sh
source "$root/scripts/build.sh"

require_packages build run test
seed=${2:-$RANDOM$RANDOM}
for preset in release sanitized; do
  configure "$preset" -DTAVRELKIN_TESTS=ON
  cmake --build "$root/build/$preset" --target soak
done

"$root/build/sanitized/soak/soak" "${1:-3600}" "$seed" 2>&1 | sed -u 's/^/sanitized: /' &
"$root/build/release/soak/soak" "${1:-3600}" "$seed" 2>&1 | sed -u 's/^/release: /'
wait $!
