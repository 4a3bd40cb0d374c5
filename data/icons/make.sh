#!/usr/bin/env bash
# Makes the PNG sizes of the icon from its drawing, tavrelkin.svg. Run it after a change of the drawing; the results are
# committed, so that a build needs no tool for them. Installs the package that it needs.
set -euo pipefail
icons=$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")
# shellcheck source=scripts/packages.sh
source "$icons/../../scripts/packages.sh"

require_packages icons
for size in 16 22 24 32 48 64 128 256; do
  rsvg-convert --width "$size" --height "$size" --output "$icons/tavrelkin-$size.png" -- "$icons/tavrelkin.svg"
done
