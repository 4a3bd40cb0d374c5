#!/usr/bin/env bash
# Makes the Debian package and tests it: its metadata, lintian, and installation, start, removal and purge on a bare
# Debian 12 with the packages that it depends on. Prints OK for each step, and stops at the first failure. Needs root to
# make a separate system (chroot) in build/package-check/. Installs the packages that it needs.
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
  echo "This check needs root, since it makes a separate system with debootstrap and chroot." >&2
  exit 1
fi
# No other process sees the mounts. They end with the last process of this script, however it ends.
[[ ${1:-} == --unshared ]] || exec unshare --mount --propagation private -- "$script" --unshared

export LANG=C.UTF-8 LC_ALL=C.UTF-8
unset DISPLAY WAYLAND_DISPLAY XAUTHORITY LANGUAGE
package=

clean_up() {
  stop_headless
  remove_tree
}

build_package() { package=$("$root/packaging/build.sh" | tail -n 1); }

# Checks the metadata in the package, not in the source folder, together with the files that they name.
check_metadata() {
  local contents="$headless_temp/contents"
  dpkg-deb --extract "$package" "$contents"
  desktop-file-validate "$contents/usr/share/applications/tavrelkin.desktop"
  appstreamcli validate-tree --no-net "$contents"
}

# packaging/debian/lintian-overrides has every exception with its reason.
check_lintian() {
  lintian --allow-root --display-info --pedantic --fail-on error,warning,info,pedantic "$package"
}

prepare_tree() {
  make_tree
  apt_in_tree update
  in_tree useradd --create-home visitor
  list_tree >"$headless_temp/before"
}

# Does not install packages that are only recommended.
install_package() {
  cp -- "$package" "$tree/tmp/package.deb"
  apt_in_tree install /tmp/package.deb
  in_tree dpkg --listfiles tavrelkin >"$headless_temp/files"
}

# Starts the program as a user, on a display without a window manager and a session bus: the tree has neither. A start
# alone must leave nothing in the user's home folder.
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

# Removing the package must remove the program's own files. Purging, and removing the packages that were installed for
# it, must remove everything else.
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

# step NAME FUNCTION: runs the function in this shell, since later steps use the results of earlier ones.
step() {
  step_name=$1
  "$2" &>"$headless_temp/step.out"
  echo "OK    $1"
}

# If a step calls exit, its output is still redirected here.
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
step "makes the package" build_package
step "desktop entry and metadata" check_metadata
step "lintian, pedantic" check_lintian
step "makes a bare Debian 12" prepare_tree
step "installs with its dependencies" install_package
step "starts without a window manager and a session bus" start_program
step "leaves nothing after removal and purge" remove_package
echo "$package"
