# shellcheck shell=bash
# A person at the real program, for scripts: sourced after `program` is set to what is started. The screen is a
# virtual X screen; under Wayland a compositor has it to itself. Keys and clicks are those of the X server, so they
# take the whole way. What the program shows is learnt from the window manager or the compositor's protocol.

hands=$(mktemp -d)
chmod 700 "$hands"
processes=()
put_away() {
    local process
    for process in "${processes[@]}"; do kill "$process" 2>/dev/null || true; done
    wait
    rm -rf "$hands"
}

fail() {
    echo "FAILED: $1" >&2
    if [[ -n ${SORVANE_PICTURE:-} ]]; then import -window root "$SORVANE_PICTURE" || true; fi
    exit 1
}

# until_so WHAT COMMAND...: waits up to a minute.
until_so() {
    local what=$1 tries=0
    shift
    until "$@"; do
        ((++tries < 1200)) || fail "$what"
        sleep 0.05
    done
}

# --- the screen

start_screen() { # start_screen WIDTH HEIGHT
    mkfifo "$hands/screen"
    Xvfb -displayfd 3 -screen 0 "$1x$2x24" -fbdir "$hands" -nolisten tcp 3>"$hands/screen" 2>/dev/null &
    processes+=($!)
    read -r -t 60 number <"$hands/screen"
    export DISPLAY=:$number
}

start_x11() {
    start_screen 1366 768
    mkfifo "$hands/manager"
    openbox --startup "sh -c 'echo ready >$hands/manager'" >/dev/null 2>&1 &
    processes+=($!)
    read -r -t 60 _ <"$hands/manager"
}

start_wayland() {
    start_screen 1400 800  # somewhat larger than the compositor, so that the pointer can come in from outside
    export XDG_RUNTIME_DIR=$hands
    cat >"$hands/weston.ini" <<'END'
[core]
idle-time=0
[shell]
panel-position=none
locking=false
animation=none
startup-animation=none
[input-method]
path=
END
    weston --backend=x11-backend.so --use-pixman --width=1366 --height=768 --config="$hands/weston.ini" \
        --socket=sorvane --log="$hands/weston.log" >/dev/null 2>&1 &
    processes+=($!)
    until_so "the compositor" test -S "$hands/sorvane"
    xdotool mousemove 683 740  # the keyboard is where the pointer is
}

# Starts the program there; what it says, under Wayland its talk with the compositor, goes to a file.
start_program() { # start_program xcb|wayland COMMAND...
    platform=$1
    shift
    QT_QPA_PLATFORM=$platform WAYLAND_DISPLAY=sorvane WAYLAND_DEBUG=$([[ $platform == wayland ]] && echo 1) \
        "$@" >"$hands/said" 2>&1 &
    player=$!
    processes+=("$player")
}

# --- what is to be seen

# The title of the window that has the keyboard; under Wayland also the number of popups that stand, and where in
# that window the pointer is.
seen() {
    if [[ $platform == xcb ]]; then
        xdotool getactivewindow getwindowname 2>/dev/null || true
        return
    fi
    awk '
        function id(kind) { return match($0, kind "@[0-9]+") ? substr($0, RSTART, RLENGTH) : "" }
        /\.get_xdg_surface\(/ { surface[id("xdg_surface")] = id("wl_surface") }
        /\.get_toplevel\(/ { of[id("xdg_toplevel")] = surface[id("xdg_surface")] }
        /\.set_title\(/ { title = $0; sub(/.*set_title\("/, "", title); sub(/"\)$/, "", title); named[of[id("xdg_toplevel")]] = title }
        /wl_keyboard@[0-9]+\.enter\(/ { front = id("wl_surface") }
        /wl_keyboard@[0-9]+\.leave\(/ { front = "" }
        /\.get_popup\(/ { popup[id("xdg_popup")] = 0 }
        /[^d] xdg_popup@[0-9]+\.configure\(/ { popup[id("xdg_popup")] = 1 }
        /xdg_popup@[0-9]+\.destroy\(/ { delete popup[id("xdg_popup")] }
        /wl_pointer@[0-9]+\.enter\(/ { under = id("wl_surface"); split($0, at, ", "); x = at[3]; y = at[4] }
        /wl_pointer@[0-9]+\.motion\(/ { split($0, at, ", "); x = at[2]; y = at[3] }
        END {
            for (one in popup) standing += popup[one]
            print named[front]
            print standing + 0
            if (front != "" && under == front) print int(x), int(y)
        }
    ' "$hands/said"
}
front_is() { [[ $(seen | sed -n 1p) == "$1" ]]; }
popups_are() { [[ $(seen | sed -n 2p) == "$1" ]]; }
# Moves the pointer to a place of the compositor and tells where in the front window that is; false when it is
# elsewhere. A compositor whose window came up under the pointer may take none of its moves before it has come in.
pointer_comes_into_front() { # pointer_comes_into_front X Y
    local there
    xdotool mousemove 1390 790 mousemove "$1" "$2"
    sleep 0.2
    there=$(seen | sed -n 3p)
    [[ -n $there ]] && read -r pointer_x pointer_y <<<"$there"
}
wait_for_window() { until_so "the window \"$1\", but \"$(seen | sed -n 1p)\"" front_is "$1"; }

# --- what is done

keys() { xdotool key --delay 60 "$@"; }
write() { xdotool type --delay 60 "$1"; }

# Holds keys until this many popups stand: a compositor gives them only to a key that is still down.
open_popup() { # open_popup COUNT KEY...
    local count=$1 key
    shift
    if [[ $platform == xcb ]]; then
        keys "$(IFS=+ && echo "$*")"
        return
    fi
    for key in "$@"; do xdotool keydown "$key"; done
    until_so "popup $count" popups_are "$count"
    for key in "$@"; do xdotool keyup "$key"; done
}

# Opens a game of Ontario by the letter of its entry in the menu.
open_game() { # open_game LETTER TITLE
    wait_for_window Sorvane
    open_popup 1 alt c
    open_popup 2 o
    keys "$1"
    wait_for_window "$2"
}

# --- roads

# One ticket of Lottario and its bonus ticket, from the menu to "Tickets Saved".
enter_lottario_ticket() {
    open_game l Lottario
    write 1
    keys Tab Tab space
    keys Right space Right space Right space Right space Right space  # 1 to 6
    keys alt+n alt+b
    keys Right space Right space Right space Right space Right space Right space  # 2 to 7
    keys alt+n alt+b alt+s
    wait_for_window CONFIRM
    keys alt+y
    wait_for_window CONFIRMED
    keys Return
    wait_for_window Sorvane
}

lottario_is_saved_in() { # the folder of the program
    local rows
    rows=$(sqlite3 "file:$1/data/sorvane.mdb?mode=ro" \
        'select Ball_1, Ball_2, Ball_3, Ball_4, Ball_5, Ball_6 from PlayedLottario order by ID1' 2>/dev/null) || return 1
    [[ $rows == $'1|2|3|4|5|6\n2|3|4|5|6|7' ]]
}

# What Lottario cost, as a report, to print.pdf in the folder that the program was started in.
print_lottario_report() {
    open_game l Lottario
    keys alt+r alt+l Tab space
    wait_for_window Print
    keys Return
    wait_for_window Lottario
}
