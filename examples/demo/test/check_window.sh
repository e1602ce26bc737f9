#!/bin/sh
# Runs the demo in a window on a private X server (Xvfb), presses Escape in
# it, and expects it to end with exit code 0. ARGS go to the demo, e.g. a
# screen size and depth. Exit code 77 (skipped) when Xvfb or xdotool is
# missing, or no X server can be started.
#
# usage: check_window.sh DEMO [ARGS...]
set -u
DEMO=$1
shift
. "$(dirname "$0")/x_session.sh"

xs_require Xvfb xdotool timeout
xs_start_server

timeout 30 "$DEMO" --window "$@" &
DEMO_PID=$!
# Escape goes through XTEST to the focused window, as a real key press
# would; it is sent again while the demo still runs.
closed=no
pressed=no
for attempt in 1 2 3 4 5; do
    if WINDOW=$(xs_focus_window '^kvt demo$' "$DEMO_PID") && xs_do key Escape; then
        pressed=yes
        tries=0
        while kill -0 "$DEMO_PID" 2>/dev/null && [ $tries -lt 20 ]; do
            sleep 0.1
            tries=$((tries + 1))
        done
    fi
    kill -0 "$DEMO_PID" 2>/dev/null || { closed=yes; break; }
    sleep 0.5
done
if [ $closed = no ]; then
    echo "the demo window did not close on Escape" >&2
    kill "$DEMO_PID" 2>/dev/null
    exit 1
fi
wait "$DEMO_PID"
status=$?
[ $pressed = yes ] || { echo "kvt-demo --window ended ($status) before its window could take a key" >&2; exit 1; }
[ $status -eq 0 ] || { echo "kvt-demo --window ended with $status" >&2; exit 1; }
echo "kvt-demo --window $* opened on $DISPLAY (window $WINDOW) and closed on Escape"
