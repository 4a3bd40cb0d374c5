#!/usr/bin/env bash
# Takes the pictures in docs/guide.md: drives the program on a separate display with pointer and keys, and writes
# docs/images/*.png. Installs and builds what it needs. A second run gives exactly the same files.
set -euo pipefail
root=$(dirname -- "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")")
# shellcheck source=scripts/packages.sh
source "$root/scripts/packages.sh"
# shellcheck source=scripts/build.sh
source "$root/scripts/build.sh"
# shellcheck source=scripts/headless.sh
source "$root/scripts/headless.sh"
program="$root/build/release/tavrelkin"
images="$root/docs/images"

# Paints a landscape with something small and colourful to look at: the balloon around (800, 247).
paint_landscape() {
  local picture="$headless_temp/landscape.png"
  convert -size 1280x800 gradient:'#27348b-#f7b267' -fill '#ffe28a' -draw 'circle 640,400 640,340' \
    -fill '#b5654a' -draw 'polygon 0,430 180,330 330,420 520,360 760,450 980,340 1280,440 1280,800 0,800' \
    -fill '#7b3f61' -draw 'polygon 0,520 260,410 470,500 660,420 900,520 1120,430 1280,500 1280,800 0,800' \
    -fill '#2e7d6b' -draw 'polygon 0,600 340,500 700,590 1010,510 1280,600 1280,800 0,800' \
    -fill '#a8c256' -draw 'polygon 0,700 420,620 860,690 1280,630 1280,800 0,800' \
    -fill '#d7263d' -draw 'ellipse 800,240 19,17 0,360 polygon 783,248 817,248 805,262 795,262' \
    -fill '#f4d35e' -draw 'ellipse 800,240 13,17 0,360 polygon 788,248 812,248 804,262 796,262' \
    -fill '#2a9d8f' -draw 'ellipse 800,240 7,17 0,360 polygon 793,248 807,248 802,262 798,262' \
    -fill '#f1faee' -draw 'ellipse 800,240 2,17 0,360' \
    -fill '#5c3d2e' -draw 'rectangle 796,266 804,271' -depth 8 "$picture"
  # The exit status of `display` is 1 even if it succeeds.
  display -window root "$picture" || true
}

look() { import -silent -window root rgb:- | cksum; }
looks_other_than() { [[ $(look) != "$1" ]]; }
rests() {
  local before
  before=$(look)
  sleep 0.2
  [[ $(look) == "$before" ]]
}

# act COMMAND ...: runs a command that changes the screen, and waits until the screen has changed and is still.
act() {
  local before
  before=$(look)
  "$@"
  poll 20 "$headless_program" looks_other_than "$before" || give_up "The screen did not change after: $*"
  poll 20 "$headless_program" rests || give_up "The screen did not become still after: $*"
}

# window TITLE: prints the id of the window with this beginning of a title, once it is visible.
window() {
  xdotool search --sync --onlyvisible --name "^$1" | tail -n 1
}

# Points and clicks at positions inside a window, menu bar included.
point() { xdotool mousemove --window "$1" "$2" "$3"; }
click() {
  point "$@"
  xdotool click 1
}
park() { xdotool mousemove 1270 790; }

# choose WINDOW X KEY: opens the menu at X in the menu bar, selects an item with "Up" or "Down", and chooses it.
choose() {
  act click "$1" "$2" 9
  act xdotool key "$3"
  act xdotool key Return
}

# save NAME GEOMETRY: writes that part of the screen to docs/images, without metadata that change from run to run.
save() {
  import -silent -window root -crop "$2" +repage -strip -define png:compression-level=9 \
    -define png:exclude-chunks=all "$headless_temp/$1.png"
  mv -- "$headless_temp/$1.png" "$images/$1.png"
}

# frame WINDOW: prints the position of a window's frame as WIDTHxHEIGHT+X+Y.
frame() {
  local outer
  outer=$(xwininfo -tree -id "$1" | sed -n 's/^ *Parent window id: \(0x[0-9a-f]*\).*/\1/p')
  xwininfo -id "$outer" | awk '/Absolute upper-left X/ { x = $4 } /Absolute upper-left Y/ { y = $4 }
    /^ *Width:/ { w = $2 } /^ *Height:/ { h = $2 } END { print w "x" h "+" x "+" y }'
}
shoot() { save "$1" "$(frame "$2")"; }

# Whether a tool window shows the tip of a bar, which disappears after a second.
tip_is_up() { [[ $(import -silent -window "$1" -crop 1x1+400+373 -depth 8 txt:-) == *#FFF8CE* ]]; }

take_pictures() {
  local tool=$headless_window palette simulator about
  xdotool windowmove --sync "$tool" 20 20

  # The window follows and has taken the red of the balloon.
  act xdotool mousemove 784 240 key ctrl+f
  act xdotool key ctrl+alt+p
  shoot tool-window "$tool"
  xdotool key ctrl+f
  park

  act xdotool key ctrl+s
  shoot suggestions "$tool"
  act xdotool key ctrl+j
  shoot colours-in-preview "$tool"
  act xdotool key ctrl+d
  shoot colour-blind "$tool"
  act xdotool key ctrl+d

  choose "$tool" 98 Up
  palette=$(window 'Untitled Colors')
  xdotool windowmove --sync "$palette" 700 500
  act click "$palette" 65 32
  shoot palette "$palette"
  act xdotool key ctrl+w

  # The window is unfolded, with the largest zoom and the grid.
  act click "$tool" 30 261
  act click "$tool" 122 378
  act click "$tool" 122 378
  act xdotool key ctrl+g
  act xdotool mousemove 784 240 key ctrl+f
  shoot tool-window-unfolded "$tool"
  xdotool key ctrl+f

  choose "$tool" 182 Down
  simulator=$(window 'Color Blind')
  xdotool windowmove --sync "$simulator" 500 120
  point "$tool" 75 315
  xdotool keydown alt mousedown 1
  point "$tool" 85 315
  act point "$simulator" 60 60
  act point "$simulator" 122 90
  save drag 1000x500+0+0
  act xdotool mouseup 1 keyup alt
  xdotool windowactivate --sync "$simulator"
  park
  poll 20 "$headless_program" rests || give_up "The screen did not become still after the drop"
  shoot simulator "$simulator"

  xdotool windowactivate --sync "$tool"
  act point "$tool" 255 296
  xdotool mousedown 1
  act point "$tool" 240 296
  point "$tool" 228 296
  poll 20 "$headless_program" tip_is_up "$tool" || give_up "The bar shows no tip"
  shoot bar-tip "$tool"
  act xdotool mouseup 1

  choose "$tool" 140 Down
  about=$(window About)
  shoot about "$about"
}

# Nothing of the surrounding desktop may be visible.
export LANG=C.UTF-8 LC_ALL=C.UTF-8 DBUS_SESSION_BUS_ADDRESS=disabled:
unset LANGUAGE "${!QT_@}"

require_packages build run display guide
is_configured release || configure release -DTAVRELKIN_TESTS=OFF
cmake --build "$root/build/release" --target tavrelkin
mkdir -p -- "$images"

start_display
export HOME="$headless_temp/home"
export XDG_CONFIG_HOME=$HOME XDG_CACHE_HOME=$HOME XDG_DATA_HOME=$HOME XDG_RUNTIME_DIR=$headless_temp
paint_landscape
start_program "$program"
poll 30 "$headless_program" window_is_painted || give_up "Tavrelkin has shown no window:"
take_pictures
