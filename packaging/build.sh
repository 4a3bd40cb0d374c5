#!/usr/bin/env bash
# Makes the Debian package with the distribution's own compiler flags (hardening); the last line that it prints is the
# package's path. Installs the packages that it needs.
set -euo pipefail
root=$(dirname -- "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")")
# shellcheck source=scripts/packages.sh
source "$root/scripts/packages.sh"
# shellcheck source=scripts/build.sh
source "$root/scripts/build.sh"
build="$root/build/package"

require_packages build package >&2
export DEB_BUILD_MAINT_OPTIONS=hardening=+all
flags() { dpkg-buildflags --get "$1"; }
configure package -DCMAKE_CXX_FLAGS="$(flags CPPFLAGS) $(flags CXXFLAGS) '-ffile-prefix-map=$root=.'" \
  -DCMAKE_EXE_LINKER_FLAGS="$(flags LDFLAGS)" -DCMAKE_MODULE_LINKER_FLAGS="$(flags LDFLAGS)" >&2
cmake --build "$build" --parallel "$(nproc)" >&2
rm -f -- "$build"/*.deb
(cd -- "$build" && umask 022 && cpack) >&2
ls -- "$build"/*.deb
