#!/usr/bin/env bash
# Makes the Debian package and tries it: its metadata, lintian, and its life on a bare Debian 12, where it is installed
# with what it depends on, started, removed and purged. Says OK for each, and stops at the first that fails. Needs root,
# for a system of its own (chroot) in build/package-check/; installs what that takes.
set -euo pipefail
script=$(readlink -f -- "${BASH_SOURCE[0]}")
root=$(dirname -- "$(dirname -- "$script")")
# shellcheck source=scripts/packages.sh
source "$root/scripts/packages.sh"
# shellcheck source=scripts/headless.sh
source "$root/scripts/headless.sh"
# shellcheck source=packaging/tree.sh
source "$root/packaging/tree.sh"

if ((EUID != 0)); then
  echo "This check needs root: it makes a system of its own by debootstrap and chroot." >&2
  exit 1
fi
# Mounts are made where no other process sees them, and go with the last process of this script, however it ends.
[[ ${1:-} == --unshared ]] || exec unshare --mount --propagation private -- "$script" --unshared

export LANG=C.UTF-8 LC_ALL=C.UTF-8
unset DISPLAY WAYLAND_DISPLAY XAUTHORITY LANGUAGE
package=

clean_up() {
  stop_headless
  remove_tree
}

build_package() { package=$("$root/packaging/build.sh" | tail -n 1); }

# What is in the package, not in the source folder: the metadata are looked at together with what they name.
check_metadata() {
  local contents="$headless_temp/contents"
  dpkg-deb --extract "$package" "$contents"
  desktop-file-validate "$contents/usr/share/applications/tavrelkin.desktop"
  appstreamcli validate-tree --no-net "$contents"
}

# Every exception stands with its reason in packaging/debian/lintian-overrides.
check_lintian() {
  lintian --allow-root --display-info --pedantic --fail-on error,warning,info,pedantic "$package"
}

prepare_tree() {
  make_tree
  apt_in_tree update
  in_tree useradd --create-home visitor
  list_tree >"$headless_temp/before"
}

# Without what it only recommends.
install_package() {
  cp -- "$package" "$tree/tmp/package.deb"
  apt_in_tree install /tmp/package.deb
  in_tree dpkg --listfiles tavrelkin >"$headless_temp/files"
}

# As a user, on a display that has no window manager, with no session bus: neither is in the tree. A mere start leaves
# nothing in the user's home.
start_program() {
  local uid class left
  uid=$(in_tree id -u visitor)
  start_server
  xhost "+si:localuser:#$uid" >/dev/null
  if in_tree sh -c 'command -v dbus-daemon || command -v dbus-launch'; then return 1; fi
  touch "$headless_temp/started"
  "${child[@]}" env --ignore-environment PATH=/usr/bin:/bin HOME=/home/visitor LANG=C.UTF-8 DISPLAY="$DISPLAY" \
    "$(command -v chroot)" --userspec=visitor:visitor "$tree" tavrelkin &>"$headless_temp/program.log" &
  headless_program=$!
  poll 30 "$headless_program" window_is_painted || give_up "The installed program shows no window:"
  class=$(sed -n 's/^StartupWMClass=//p' "$tree/usr/share/applications/tavrelkin.desktop")
  [[ $(xprop -id "$headless_window" WM_CLASS) == *", \"$class\"" ]]
  take_screenshot "$root/build/package.png"
  stop_child "$headless_program"
  headless_program=
  cat -- "$headless_temp/program.log"
  left=$(find "$tree/home/visitor" -type f -newer "$headless_temp/started")
  [[ -z $left ]] || { echo "left in the user's home: $left"; return 1; }
}

# Removal takes the program's own files, and the rest goes with purge and with what was installed for it.
remove_package() {
  local path
  apt_in_tree remove tavrelkin
  while IFS= read -r path; do
    [[ ! -f $tree$path && ! -L $tree$path ]] || { echo "$path is left behind"; return 1; }
  done <"$headless_temp/files"
  in_tree dpkg --purge tavrelkin
  apt_in_tree autoremove --purge
  if in_tree dpkg-query --show tavrelkin; then return 1; fi
  list_tree >"$headless_temp/after"
  diff -- "$headless_temp/before" "$headless_temp/after"
}

# step NAME FUNCTION: in this shell, since one step goes on where the other ended.
step() {
  step_name=$1
  "$2" &>"$headless_temp/step.out"
  echo "OK    $1"
}

# A step that exits outright still has its output redirected here.
end() {
  local status=$?
  ((status == 0)) || { echo "FAIL  $step_name"; tail -n 40 -- "$headless_temp/step.out"; } >&"$errors"
  clean_up
}

exec {errors}>&2
step_name=
headless_temp=$(mktemp -d "${TMPDIR:-/tmp}/tavrelkin.XXXXXX")
[[ -d /tmp/.X11-unix ]] || mkdir -m 1777 -- /tmp/.X11-unix
trap end EXIT
trap 'exit 129' HUP
trap 'exit 130' INT
trap 'exit 143' TERM

require_packages build package
step "the package is made" build_package
step "desktop entry and metadata" check_metadata
step "lintian, pedantic" check_lintian
step "a bare Debian 12" prepare_tree
step "installs with what it depends on" install_package
step "starts, without window manager and session bus" start_program
step "removed and purged, nothing is left" remove_package
echo "$package"
