#!/usr/bin/env bash
# serve-over-vnc.sh PROGRAM [ARGUMENT...]: runs a program on a virtual screen and shows that screen over
# VNC on the loopback address, until the program ends or this script is interrupted. Only who knows the
# password it prints sees the screen, and only this user's programs can draw on it.
set -euo pipefail
umask 077

# Room for a phone, and for a tablet in either orientation.
screen_size=${VELMORA_SCREEN_SIZE:-1200x1000}

scratch=$(mktemp -d)
program=
servers=()

# is_running PROCESS
is_running() {
    kill -0 "$1" 2>/dev/null
}

finish() {
    trap - EXIT
    trap '' INT TERM HUP # once is enough; what follows must not be cut short
    # The program first, and to its end: it still saves, and would die with its screen.
    if [[ -n $program ]] && is_running "$program"; then
        kill -TERM "$program" 2>/dev/null || true
        for ((i = 0; i < 100; ++i)); do
            is_running "$program" || break
            sleep 0.1
        done
    fi
    for server in "${servers[@]}"; do
        kill "$server" 2>/dev/null || true
    done
    wait "${servers[@]}" 2>/dev/null || true
    rm -rf "$scratch"
}
trap finish EXIT
trap 'exit 130' INT
trap 'exit 143' TERM
trap 'exit 129' HUP

fail() {
    echo "$1" >&2
    if [[ -s ${2:-} ]]; then
        cat "$2" >&2
    fi
    exit 1
}

# wait_until SECONDS PROCESS COMMAND...: false when the process ends or the time is over first.
wait_until() {
    local tries=$(($1 * 10)) process=$2
    shift 2
    until "$@" 2>/dev/null; do
        ((tries-- > 0)) && kill -0 "$process" 2>/dev/null || return 1
        sleep 0.1
    done
}

# A session of their own, where no Ctrl-C of the terminal reaches them. The virtual screen looks for a free
# display itself and writes its number: no race with others. Whoever connects must know its cookie.
cookie=$(mcookie)
export XAUTHORITY="$scratch/authority"
xauth -q add :0 . "$cookie" 2>/dev/null # the server takes the cookie and asks for no number
setsid Xvfb -displayfd 3 -screen 0 "${screen_size}x24" -nolisten tcp -auth "$XAUTHORITY" \
    3>"$scratch/display" >"$scratch/xvfb.log" 2>&1 &
servers+=($!)
wait_until 30 "$!" test -s "$scratch/display" || fail "The virtual screen did not start:" "$scratch/xvfb.log"
DISPLAY=":$(<"$scratch/display")"
export DISPLAY
xauth -q add "$DISPLAY" . "$cookie"
unset WAYLAND_DISPLAY

# -autoport counts up from 5900 to the first free port. VNC reads no more than eight letters of a password.
password=$(LC_ALL=C tr -dc 'a-km-zA-HJ-NP-Z2-9' </dev/urandom 2>/dev/null | head -c 8 || true)
((${#password} == 8)) || fail "There is no randomness for a password."
printf '%s\n' "$password" >"$scratch/password"
setsid x11vnc -display "$DISPLAY" -auth "$XAUTHORITY" -localhost -no6 -passwdfile "$scratch/password" \
    -autoport 5900 -forever -shared -noxdamage -quiet -flag "$scratch/port" >"$scratch/x11vnc.log" 2>&1 &
servers+=($!)
wait_until 30 "$!" grep -q '^PORT=' "$scratch/port" || fail "The VNC server did not start:" "$scratch/x11vnc.log"
port=$(sed -n 's/^PORT=//p' "$scratch/port")

cat <<TEXT
There is no display here, so Velmora is shown over VNC:

    host      127.0.0.1 (this machine only)
    port      $port
    password  $password

From another machine, forward the port first and then open localhost:$port in a VNC viewer:

    ssh -L $port:localhost:$port USER@THIS-MACHINE

Ctrl-C here ends everything. For the layout of a tablet, start it with: ./run -qwindowgeometry 768x1000
TEXT

# A virtual screen has no graphics card; Qt's own renderer sends less to the viewer than an emulated one.
export QT_QPA_PLATFORM=xcb
export QT_QUICK_BACKEND=${QT_QUICK_BACKEND:-software}
"$@" &
program=$!
status=0
wait "$program" || status=$?
exit "$status"
