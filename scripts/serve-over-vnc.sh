#!/usr/bin/env bash
# serve-over-vnc.sh PROGRAM [ARGUMENT...]: runs a program on a virtual screen and shows that screen over
# VNC on the loopback address, until the program ends or this script is interrupted.
set -euo pipefail

# Room for a phone, and for a tablet in either orientation after resizing the window.
screen_size=${VELMORA_SCREEN_SIZE:-1200x1000}

scratch=$(mktemp -d)
started=()

finish() {
    trap - EXIT INT TERM HUP
    # Last started, first stopped: the server's viewers should not see their display vanish first.
    for ((i = ${#started[@]} - 1; i >= 0; --i)); do
        kill "${started[i]}" 2>/dev/null || true
    done
    wait 2>/dev/null || true
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

# The server looks for a free display itself and writes its number: no race with other servers.
Xvfb -displayfd 3 -screen 0 "${screen_size}x24" -nolisten tcp 3>"$scratch/display" >"$scratch/xvfb.log" 2>&1 &
started+=($!)
wait_until 30 "$!" test -s "$scratch/display" || fail "The virtual screen did not start:" "$scratch/xvfb.log"
DISPLAY=":$(<"$scratch/display")"
export DISPLAY
unset WAYLAND_DISPLAY

if command -v openbox >/dev/null; then
    openbox --sm-disable >"$scratch/openbox.log" 2>&1 &
    started+=($!)
fi

# -autoport counts up from 5900 to the first free port. No password: only this machine can connect.
x11vnc -display "$DISPLAY" -localhost -no6 -nopw -autoport 5900 -forever -shared -noxdamage -quiet \
    -flag "$scratch/port" >"$scratch/x11vnc.log" 2>&1 &
started+=($!)
wait_until 30 "$!" grep -q '^PORT=' "$scratch/port" || fail "The VNC server did not start:" "$scratch/x11vnc.log"
port=$(sed -n 's/^PORT=//p' "$scratch/port")

cat <<TEXT
There is no display here, so Velmora is shown over VNC:

    host  127.0.0.1 (this machine only, no password)
    port  $port

From another machine, forward the port first and then open localhost:$port in a VNC viewer:

    ssh -L $port:localhost:$port USER@THIS-MACHINE

Closing Velmora, or Ctrl-C here, ends everything.
TEXT

# A virtual screen has no graphics card; Qt's own renderer sends less to the viewer than an emulated one.
export QT_QPA_PLATFORM=xcb
export QT_QUICK_BACKEND=${QT_QUICK_BACKEND:-software}
"$@" &
program=$!
started+=("$program")
status=0
wait "$program" || status=$?
exit "$status"
