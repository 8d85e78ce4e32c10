#!/usr/bin/env bash
# Starts the program itself where the desktop tells only through its settings portal that it is dark, with a mock
# portal on a bus of its own, and looks at the colours on the screen: portal_test.sh PROGRAM
set -euo pipefail
if [[ -z ${SORVANE_OWN_BUS:-} ]]; then exec dbus-run-session -- env SORVANE_OWN_BUS=1 "$0" "$@"; fi

# shellcheck source=tests/process/hands.sh
. "$(dirname "${BASH_SOURCE[0]}")/hands.sh"
trap put_away EXIT
mkdir "$hands/player"
cp "$1" "$hands/player/sorvane"
unset XDG_CURRENT_DESKTOP QT_QPA_PLATFORMTHEME
export XDG_RUNTIME_DIR=$hands
start_x11

name=org.freedesktop.portal.Desktop
path=/org/freedesktop/portal/desktop
settings=org.freedesktop.portal.Settings
call() { dbus-send --session --print-reply --dest=$name $path "$@" >/dev/null; }
is_there() { dbus-send --session --print-reply --dest=$name $path org.freedesktop.DBus.Peer.Ping >/dev/null 2>&1; }

# A portal that answers with this scheme (1 dark, 2 light, 0 neither) after so many seconds.
start_portal() { # start_portal SCHEME SECONDS
    /usr/bin/python3 -m dbusmock --session $name $path $settings >/dev/null 2>&1 &
    portal=$!
    processes+=("$portal")
    until_so "the portal" is_there
    call org.freedesktop.DBus.Mock.AddMethod string:$settings string:Read string:ss string:v \
        string:"import time; time.sleep($2); ret = dbus.UInt32($1, variant_level=1)"
    call org.freedesktop.DBus.Mock.AddMethod string:$settings string:Change string:ssu string: \
        string:"self.EmitSignal('$settings', 'SettingChanged', 'ssv', [args[0], args[1], dbus.UInt32(args[2], variant_level=1)])"
}
change() { call $settings.Change string:"$1" string:"$2" uint32:"$3"; }
scheme() { change org.freedesktop.appearance color-scheme "$1"; }
stop_portal() {
    kill "$portal"
    wait "$portal" || true
}

# The green of the window in front, 0 to 255, at its left edge, where nothing but the window is.
ground() {
    local WINDOW X Y WIDTH HEIGHT SCREEN header colours line
    eval "$(xdotool getactivewindow getwindowgeometry --shell)"
    field() { od -An -tu4 --endian=big -j"$1" -N4 "$hands/Xvfb_screen0" | tr -d ' '; }
    header=$(field 0) line=$(field 48) colours=$(field 76)
    od -An -tu1 -j$((header + colours * 12 + (Y + HEIGHT / 2) * line + (X + 3) * 4 + 1)) -N1 "$hands/Xvfb_screen0" |
        tr -d ' '
}
is_dark() { (($(ground) < 80)); }
is_light() { (($(ground) > 200)); }
start() {
    start_program xcb "$hands/player/sorvane"
    wait_for_window Sorvane
}
end() {
    wait_for_window Sorvane
    keys alt+x
    until_so "the end" bash -c "! kill -0 $player 2>/dev/null"
}

echo "without a bus, and without a portal on it, the program is as light as the desktop's theme"
start_program xcb env -u DBUS_SESSION_BUS_ADDRESS "$hands/player/sorvane"
wait_for_window Sorvane
sleep 1
is_light || fail "not light without a bus: $(ground)"
end
start
sleep 1
is_light || fail "not light without a portal: $(ground)"
end

echo "it is dark where the portal says so, and follows it while windows are open"
start_portal 1 0
start
until_so "dark" is_dark
open_game 6 "Lotto 6/49"
until_so "a dark game" is_dark
scheme 2
until_so "light again" is_light
scheme 1
until_so "dark again" is_dark
scheme 0
until_so "light without a wish" is_light
keys F1
wait_for_window "The Player's Guide"
scheme 1
until_so "a dark guide" is_dark
keys Escape
wait_for_window "Lotto 6/49"
until_so "a dark game below it" is_dark

echo "what else changes is none of its business"
change org.freedesktop.appearance contrast 0
change org.gnome.desktop.interface color-scheme 2
scheme 1
sleep 1
is_dark || fail "another setting made it light"
keys alt+x
end
stop_portal

echo "a portal that takes its time keeps nobody waiting"
start_portal 1 8
start
open_game 6 "Lotto 6/49"
is_light || fail "the answer came before it was given"
until_so "dark in the end" is_dark
keys alt+x
end
