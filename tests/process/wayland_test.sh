#!/usr/bin/env bash
# One road under a Wayland compositor, by keyboard and mouse, from the menu to "Tickets Saved", with a calendar,
# a list's drop-down and the guide on the way: wayland_test.sh PROGRAM
set -euo pipefail

# shellcheck source=tests/process/hands.sh
. "$(dirname "${BASH_SOURCE[0]}")/hands.sh"
trap put_away EXIT
mkdir "$hands/player"
cp "$1" "$hands/player/sorvane"
cp -RL "$(dirname "$1")/share" "$hands/player/share"
start_wayland
: >"$hands/said"
start_program wayland "$hands/player/sorvane"

popup_comes() { # within a second
    local tries
    for tries in {1..20}; do
        if popups_are 1; then return; fi
        sleep 0.05
    done
    return 1
}

leave_popup() { # leave_popup WHAT: by Escape, if it ever opened; then the game too
    [[ -n $opened ]] || fail "no $1"
    keys Escape
    until_so "the $1 closed" popups_are 0
    keys alt+x
}

echo "a calendar opens under the arrow of a date, and Escape closes it"
open_game 6 "Lotto 6/49"
# The middle is in every window that is larger than half of the screen.
until_so "the pointer in the window" pointer_comes_into_front 683 384
left=$((683 - pointer_x)) top=$((384 - pointer_y))
opened=
# The arrow is near here; just where depends on the letters.
for along in 113 105 121 97 129; do
    xdotool mousemove $((left + along)) $((top + 108)) mousedown 1
    if popup_comes; then opened=1; fi
    xdotool mouseup 1
    if [[ -n $opened ]]; then break; fi
done
leave_popup calendar

echo "so does the list of a field"
open_game p "Pick 3"
write 1
opened=
for _ in {1..12}; do
    xdotool key Tab keydown F4
    if popup_comes; then opened=1; fi
    xdotool keyup F4
    if [[ -n $opened ]]; then break; fi
done
leave_popup list

echo "F1 opens the guide over a game, and Escape leaves it"
open_game 6 "Lotto 6/49"
keys F1
wait_for_window "The Player's Guide"
keys alt+s
write lottario
keys Return Escape
wait_for_window "Lotto 6/49"
keys alt+x

echo "a ticket goes from the menu to the file"
enter_lottario_ticket
lottario_is_saved_in "$hands/player" || fail "the ticket is not in the file"

echo "the program ends by its own button, and nothing was refused on the way"
keys alt+x
until_so "the end" bash -c "! kill -0 $player 2>/dev/null"
complaints=$(grep -E 'wl_display@1\.error|qt\.qpa\.wayland|^Qt|[Ww]arning' "$hands/said" || true)
[[ -z $complaints ]] || fail "$complaints"
