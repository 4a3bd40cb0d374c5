# shellcheck shell=bash
# A display for machines without one: a virtual X server, a window manager and a colourful desktop, which last as long
# as the program. run.sh, docs/screenshots.sh and packaging/check.sh source this file and set `root` to the source
# folder.
: "${root:?}"

headless_temp=
headless_server=
headless_manager=
headless_program=
headless_window=

# The prefix of each command that is started here. The command gets a session of its own, so that Ctrl-C reaches only
# this script, which then stops everything in order. It also ends with the script if the script is killed.
child=(setsid setpriv --pdeathsig TERM --)

# Ends the child and its process group; kills them after five seconds.
stop_child() {
  local pid=$1 turn
  [[ -n $pid ]] || return 0
  kill -TERM -- "-$pid" 2>/dev/null || kill -TERM "$pid" 2>/dev/null || true
  for ((turn = 0; turn < 100; turn++)); do
    kill -0 "$pid" 2>/dev/null || break
    sleep 0.05
  done
  kill -KILL -- "-$pid" 2>/dev/null || true
  wait "$pid" 2>/dev/null || true
}

stop_headless() {
  trap '' HUP INT TERM
  stop_child "$headless_program"
  stop_child "$headless_manager"
  stop_child "$headless_server"
  [[ -z $headless_temp ]] || rm -rf -- "$headless_temp"
}

# poll SECONDS PID COMMAND ...: waits until the command succeeds. Fails when the time is up or the process has ended.
poll() {
  local deadline=$((SECONDS + $1)) pid=$2
  shift 2
  until "$@"; do
    if ((SECONDS >= deadline)) || ! kill -0 "$pid" 2>/dev/null; then return 1; fi
    sleep 0.05
  done
}

give_up() {
  echo "$1" >&2
  cat -- "$headless_temp"/*.log >&2 || true
  exit 1
}

# Only the user who started the server may use it: it has no network socket, and xhost excludes other users.
start_server() {
  local number
  mkfifo -- "$headless_temp/number"
  "${child[@]}" Xvfb -displayfd 3 -screen 0 1280x800x24 -nolisten tcp -noreset -s 0 \
    3>"$headless_temp/number" &>"$headless_temp/server.log" &
  headless_server=$!
  read -r number <"$headless_temp/number" || give_up "Xvfb, the virtual display, did not start:"
  export DISPLAY=":$number"
  xhost "+si:localuser:$(id -un)" >/dev/null
  xhost -local: >/dev/null
}

manager_is_up() { [[ $(xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null) == *"window id"* ]]; }

# The window manager has a home folder of its own, so that the user's settings and files do not matter.
start_manager() {
  local home="$headless_temp/home"
  mkdir -- "$home"
  HOME=$home XDG_CONFIG_HOME=$home XDG_CACHE_HOME=$home XDG_DATA_HOME=$home \
    "${child[@]}" openbox --sm-disable --config-file "$root/scripts/openbox.xml" &>"$headless_temp/manager.log" &
  headless_manager=$!
  poll 20 "$headless_manager" manager_is_up || give_up "Openbox, the window manager, did not start:"
}

# Paints something to point at: all hues from black to white, flat colours with sharp edges, fine patterns.
paint_desktop() {
  local picture="$headless_temp/desktop.png" left=0 swatch
  local -a draw=(-fill white -draw 'rectangle 0,600 1279,799')
  for swatch in '#ff0000' '#ff8000' '#ffff00' '#00ff00' '#00ffff' '#0000ff' '#8000ff' '#ff00ff' '#000000' '#808080'; do
    draw+=(-fill "$swatch" -draw "rectangle $((left + 8)),620 $((left + 119)),699")
    left=$((left + 128))
  done
  draw+=(-fill black)
  for ((left = 8; left < 600; left += 8)); do draw+=(-draw "line $left,720 $((left + left / 16)),780"); done
  for ((left = 648; left < 1272; left += 8)); do
    draw+=(-draw "rectangle $left,720 $((left + 3)),749" -draw "rectangle $((left + 4)),750 $((left + 7)),779")
  done
  # At first the pointer is in the middle of the screen, on the edge of the inner circle.
  draw+=(-fill '#ffcc00' -draw 'circle 700,400 700,500' -fill '#003399' -draw 'circle 700,400 700,460')
  convert -size 600x1280 gradient: -rotate 90 \( -size 1280x600 xc:white \) \( -size 1280x600 gradient: \) \
    -set colorspace HSL -combine -colorspace sRGB -alpha off -background white -gravity north -extent 1280x800 \
    +antialias "${draw[@]}" -depth 8 "$picture"
  # The exit status of `display` is 1 even if it succeeds.
  display -window root "$picture" || true
}

# Sets headless_window to the program's first window, found by its title, once it is on the screen.
window_is_up() {
  headless_window=$(xwininfo -root -tree 2>/dev/null | sed -n 's/^ *\(0x[0-9a-f]*\) "Color: .*/\1/p' | tail -n 1)
  [[ -n $headless_window && $(xwininfo -id "$headless_window" 2>/dev/null) == *"Map State: IsViewable"* ]]
}

# The toolkit shows all of a window's content at once; until then the window has one colour.
window_is_painted() {
  local colours
  window_is_up && colours=$(convert "x:$headless_window" -format %k info: 2>/dev/null) && ((colours > 1))
}

take_screenshot() {
  import -window root "png:$1.part" && mv -f -- "$1.part" "$1"
}

# Starts the display, with a window manager and an empty desktop, until this script ends. Sets headless_temp to a folder
# that is removed then.
start_display() {
  headless_temp=$(mktemp -d "${TMPDIR:-/tmp}/tavrelkin.XXXXXX")
  trap stop_headless EXIT
  trap 'exit 129' HUP
  trap 'exit 130' INT
  trap 'exit 143' TERM

  unset WAYLAND_DISPLAY
  export XDG_RUNTIME_DIR=${XDG_RUNTIME_DIR:-$headless_temp}
  start_server
  start_manager
}

# There is no session bus here. The toolkit must not start one, since it would outlive the program.
start_program() {
  DBUS_SESSION_BUS_ADDRESS=${DBUS_SESSION_BUS_ADDRESS:-disabled:} QT_QPA_PLATFORM=xcb "${child[@]}" "$1" &
  headless_program=$!
}

# run_headless PROGRAM SCREENSHOT: runs the program on a separate display, and saves a picture of the whole screen once
# the program's window is visible. Ends this script with the program's exit status.
run_headless() {
  local program=$1 screenshot=$2 status=0
  rm -f -- "$screenshot"
  start_display
  paint_desktop
  start_program "$program"
  if poll 30 "$headless_program" window_is_painted; then
    take_screenshot "$screenshot"
    echo "Tavrelkin is running on a virtual display. Screenshot: $screenshot"
    echo "Start other programs with DISPLAY=$DISPLAY to put them on the same display. Ctrl-C ends Tavrelkin."
  elif kill -0 "$headless_program" 2>/dev/null; then
    echo "Tavrelkin is running on DISPLAY=$DISPLAY, but has shown no window for 30 seconds." >&2
  fi
  wait "$headless_program" || status=$?
  exit "$status"
}
