#!/usr/bin/env bash
# Starts the program itself on a virtual screen that becomes smaller and larger: screen_test.sh PROGRAM
set -euo pipefail

# shellcheck source=tests/process/hands.sh
. "$(dirname "${BASH_SOURCE[0]}")/hands.sh"
trap put_away EXIT
mkdir "$hands/player"
cp "$1" "$hands/player/sorvane"
start_x11

# The name of a mode, made where it is missing.
mode() { # mode WIDTH HEIGHT
    local name=$1x$2
    if ! xrandr 2>/dev/null | grep -q " $name "; then
        xrandr --newmode "$name" 40 "$1" $(($1 + 8)) $(($1 + 16)) $(($1 + 40)) "$2" $(($2 + 4)) $(($2 + 8)) $(($2 + 20))
        xrandr --addmode screen "$name" 2>/dev/null
    fi
    xrandr --output screen --mode "$name" 2>/dev/null
}
# Whether all of the window in front is on a screen of this size. What the window manager puts around it is counted
# twice by the one who measures.
fits() { # fits WIDTH HEIGHT
    local WINDOW X Y WIDTH HEIGHT SCREEN
    eval "$(xdotool getactivewindow getwindowgeometry --shell)"
    ((X >= 0 && Y >= 0 && X + WIDTH <= $1 + 4 && Y + HEIGHT <= $2 + 24))
}

echo "it opens in the middle of the screen"
start_program xcb "$hands/player/sorvane"
wait_for_window Sorvane
in_the_middle() {
    local WINDOW X Y WIDTH HEIGHT SCREEN
    eval "$(xdotool getactivewindow getwindowgeometry --shell)"
    ((X + WIDTH / 2 > 663 && X + WIDTH / 2 < 703 && Y + HEIGHT / 2 > 344 && Y + HEIGHT / 2 < 444))
}
until_so "the middle" in_the_middle

echo "a window comes back onto a screen that has shrunk"
open_game 6 "Lotto 6/49"
xdotool getactivewindow windowmove 500 240
until_so "at the edge" bash -c '[[ $(xdotool getactivewindow getwindowgeometry --shell) == *X=50* ]]'
mode 1024 600
until_so "back on the smaller screen" fits 1024 600
mode 800 480
until_so "and on the smallest" fits 800 480

echo "so does the one behind it, and what opens then has room"
keys F1
wait_for_window "The Player's Guide"
until_so "room for the guide" fits 800 480
keys Escape
wait_for_window "Lotto 6/49"
keys alt+x
wait_for_window Sorvane
until_so "the main window on the smallest" fits 800 480
mode 1366 768
keys alt+x
until_so "the end" bash -c "! kill -0 $player 2>/dev/null"
