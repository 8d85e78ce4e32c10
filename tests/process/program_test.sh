#!/usr/bin/env bash
# Starts the program itself under a screen with a window manager and plays one ticket by keys, from the menu to the
# file: program_test.sh PROGRAM
set -euo pipefail

work=$(mktemp -d)
program=
finish() {
    [[ -z $program ]] || kill "$program" 2>/dev/null || true
    rm -rf "$work"
}
trap finish EXIT

fail() {
    echo "FAILED: $1" >&2
    exit 1
}
# Polls until the command succeeds. How long at most says only how long a hang lasts.
await() {
    local what=$1
    shift
    for ((tries = 0; tries < 600; ++tries)); do
        if "$@"; then return; fi
        kill -0 "$program" 2>/dev/null || "$@" || fail "$what; the program has ended: $(cat "$work/said")"
        sleep 0.1
    done
    fail "$what; in front is \"$(in_front)\""
}
in_front() { xdotool getwindowfocus getwindowname 2>/dev/null || true; }
is_in_front() { [[ $(in_front) == "$1" ]]; }
# The window that gets the keys.
await_window() { await "never came: $1" is_in_front "$1"; }
has_ended() { ! kill -0 "$program" 2>/dev/null; }
ask() { sqlite3 "$work/data/sorvane.mdb" "$1"; }

# Its records lie beside it.
cp "$1" "$work/sorvane"
cp -R "${1%/*}/modules" "$work"
export HOME=$work XDG_CONFIG_HOME=$work/config XDG_CACHE_HOME=$work/cache

first_day=$(date +%F)

echo "it starts without a message, whatever is written behind its name"
"$work/sorvane" --version now >"$work/said" 2>&1 &
program=$!
await_window Sorvane
[[ $(ask "SELECT group_concat(name) FROM (SELECT name FROM sqlite_schema WHERE type = 'table' ORDER BY name)") == Spent,Winnings ]] ||
    fail "not the two ledgers"

echo "the menu opens a game"
xdotool key alt+c b b
await_window BC/49

echo "a ticket is entered and saved"
xdotool key 1 Tab Tab
xdotool key space Tab space Tab space Tab space Tab space Tab space
xdotool key alt+s
await_window CONFIRM
xdotool key alt+y
await_window CONFIRMED
xdotool key space
await_window Sorvane

echo "what draws charts is loaded with the first one that is seen"
charts_are_loaded() { grep -q "$work/modules/sorvane-charts.so" "/proc/$program/maps"; }
! charts_are_loaded || fail "it is loaded before"
xdotool key alt+c b b
await_window BC/49
xdotool key alt+r
await "no charts" charts_are_loaded
xdotool key alt+x
await_window Sorvane

echo "it ends from the menu"
xdotool key alt+f x
await "it never ended" has_ended
wait "$program" || fail "it ended with $?: $(cat "$work/said")"
program=

echo "the ticket and its price are in the file, and nothing lies beside it"
row=$(ask "SELECT ID1, Ball_1, Ball_2, Ball_3, Ball_4, Ball_5, Ball_6 FROM PlayedBC49")
[[ $row == "1|1|2|3|4|5|6" ]] || fail "the ticket is $row"
day=$(ask "SELECT date(Date + 2415018.5) FROM PlayedBC49")
[[ ! $day < $first_day && ! $day > $(date +%F) ]] || fail "its day is $day"
row=$(ask "SELECT ID1, Lottoflag, Spent FROM Spent")
[[ $row == "1|BC49|0.5" ]] || fail "the price is $row"
[[ $(ls "$work/data") == sorvane.mdb ]] || fail "beside it: $(ls "$work/data")"

echo "without what draws charts the reports are there all the same"
rm -r "$work/modules"
"$work/sorvane" >"$work/said" 2>&1 &
program=$!
await_window Sorvane
xdotool key alt+c b b
await_window BC/49
xdotool key alt+r alt+f  # the report of a table that is not there yet
await_window ERROR!
xdotool key space alt+x
await_window Sorvane
xdotool key alt+f x
await "it never ended" has_ended
wait "$program" || fail "it ended with $?: $(cat "$work/said")"
program=
