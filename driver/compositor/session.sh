#!/usr/bin/env bash
# driver/compositor/session.sh [--monitor WIDTHxHEIGHT ...] COMMAND [ARGUMENT ...]
#
# Runs the command in a separate GNOME session on Wayland: mutter without a screen, a message bus, PipeWire and the
# desktop portal. The exit status is the command's, or 69 if the session did not start. The top left corner of the first
# monitor is at 0, 0; each further monitor is to the right of the last one. Without --monitor there is one of 1280x1024.
#
# The command gets the session's WAYLAND_DISPLAY, DBUS_SESSION_BUS_ADDRESS, XDG_RUNTIME_DIR and home folder, which end
# with the session, and the logs of the session's parts in $SESSION_LOGS. All its remaining processes are ended.
# desktop.py beside this script plays the user of such a session: it moves the pointer, presses buttons and keys, and
# takes pictures of all monitors.
#
# It needs the packages of the purposes "run" and "compositor".
set -euo pipefail

# Ends the child with its parent, even if the parent is killed.
child=(setpriv --pdeathsig TERM --)

give_up() {
  echo "The session on Wayland did not start: $1" >&2
  tail -n 20 -- "$SESSION_LOGS"/*.log >&2 || true
  exit 69
}

# start NAME COMMAND ...: starts a part of the session, with a log of its own.
start() {
  local name=$1
  shift
  "${child[@]}" "$@" &>"$SESSION_LOGS/$name.log" </dev/null &
  disown
}

# await WHAT COMMAND ...: waits until the command succeeds.
await() {
  local what=$1 deadline=$((SECONDS + 20))
  shift
  until "$@" &>/dev/null; do
    ((SECONDS < deadline)) || give_up "$what is missing."
    sleep 0.05
  done
}

await_socket() { await "the socket $1" test -S "$XDG_RUNTIME_DIR/$1"; }
await_name() { gdbus wait --session --timeout 20 "$1" 2>/dev/null || give_up "$1 is missing from the bus."; }

# Runs inside the session's bus, whose log exists already.
run_session() {
  local -a monitors
  read -ra monitors <<<"$1"
  shift
  # A second bus replaces the system's, so that neither the system's bus nor its services matter.
  start system-bus dbus-daemon --session --nofork --address="unix:path=$XDG_RUNTIME_DIR/system-bus"
  export DBUS_SYSTEM_BUS_ADDRESS="unix:path=$XDG_RUNTIME_DIR/system-bus"
  await_socket system-bus
  start pipewire pipewire
  await_socket pipewire-0
  start wireplumber wireplumber
  start mutter mutter --headless --wayland --no-x11 "${monitors[@]/#/--virtual-monitor=}"
  await_socket wayland-0
  await_name org.gnome.Mutter.ScreenCast
  await_name org.gnome.Mutter.RemoteDesktop

  export WAYLAND_DISPLAY=wayland-0 XDG_SESSION_TYPE=wayland XDG_CURRENT_DESKTOP=GNOME GDK_BACKEND=wayland
  dbus-update-activation-environment WAYLAND_DISPLAY XDG_SESSION_TYPE XDG_CURRENT_DESKTOP GDK_BACKEND \
    DBUS_SYSTEM_BUS_ADDRESS
  start portal-gnome /usr/libexec/xdg-desktop-portal-gnome
  await_name org.freedesktop.impl.portal.desktop.gnome
  start portal /usr/libexec/xdg-desktop-portal
  await_name org.freedesktop.portal.Desktop
  "$@"
}

# Prints the ids of the session's processes, which are found by their runtime folder.
session_processes() {
  local process
  for process in /proc/[0-9]*; do
    if grep -qsxzF "XDG_RUNTIME_DIR=$folder/runtime" "$process/environ"; then echo "${process#/proc/}"; fi
  done
}

stop_session() {
  local signal turn
  local -a processes
  trap '' HUP INT TERM
  for signal in TERM KILL; do
    for ((turn = 0; turn < 60; turn++)); do
      mapfile -t processes < <(session_processes)
      ((${#processes[@]} > 0)) || break 2
      ((turn > 0)) || kill -"$signal" "${processes[@]}" 2>/dev/null || true
      sleep 0.05
    done
  done
  rm -rf -- "$folder"
}

if [[ ${1:-} == --inside ]]; then
  shift
  run_session "$@" >&3 2>&4 3>&- 4>&-
  exit
fi

sizes=
while [[ ${1:-} == --monitor ]]; do
  sizes+="$2 "
  shift 2
done

folder=$(mktemp -d "${TMPDIR:-/tmp}/tavrelkin.XXXXXX")
trap stop_session EXIT
trap 'exit 129' HUP
trap 'exit 130' INT
trap 'exit 143' TERM
mkdir -m 700 -- "$folder/runtime" "$folder/home" "$folder/logs"

# The surrounding desktop must neither matter nor be changed. With Cairo, GTK 4 needs no graphics card; the threads of
# OpenGL's software renderer have blocked mutter for seconds.
unset DISPLAY WAYLAND_DISPLAY XAUTHORITY LANGUAGE DBUS_SESSION_BUS_ADDRESS "${!XDG_@}" "${!QT_@}"
export LANG=C.UTF-8 LC_ALL=C.UTF-8 SESSION_LOGS="$folder/logs"
export HOME="$folder/home" XDG_RUNTIME_DIR="$folder/runtime" GSETTINGS_BACKEND=memory GSK_RENDERER=cairo LP_NUM_THREADS=0
setsid "${child[@]}" dbus-run-session -- "${child[@]}" bash "${BASH_SOURCE[0]}" --inside "${sizes:-1280x1024}" "$@" \
  3>&1 4>&2 &>"$SESSION_LOGS/bus.log" &
wait $!
