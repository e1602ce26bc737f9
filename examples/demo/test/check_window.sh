#!/bin/sh
# Runs the demo in a window on a private X server (Xvfb), presses Escape in
# it, and expects it to end with exit code 0. SDL 1.2 on a bare X server
# has no window manager to give the window focus, so xdotool focuses it
# before sending the key. Exit code 77 (skipped) without Xvfb or xdotool.
#
# usage: check_window.sh DEMO
set -u
DEMO=$1

for tool in Xvfb xdotool timeout; do
    command -v "$tool" >/dev/null || { echo "skipped: $tool is not installed"; exit 77; }
done

WORK=$(mktemp -d)
XVFB=""
cleanup() {
    [ -n "$XVFB" ] && kill "$XVFB" 2>/dev/null
    rm -rf "$WORK"
}
trap cleanup EXIT

# -displayfd lets the server choose a free display number and report it.
Xvfb -displayfd 3 -screen 0 800x600x24 -nolisten tcp 3>"$WORK/display" 2>"$WORK/xvfb.log" &
XVFB=$!
tries=0
while [ ! -s "$WORK/display" ]; do
    tries=$((tries + 1))
    [ $tries -le 100 ] || { echo "Xvfb did not start:" >&2; cat "$WORK/xvfb.log" >&2; exit 1; }
    sleep 0.1
done
DISPLAY=:$(head -n 1 "$WORK/display")
export DISPLAY

timeout 30 "$DEMO" --window &
DEMO_PID=$!
# The window may be found before it is mapped and can take focus, so focus
# and key are tried again until the demo has ended. The key goes through
# XTEST to the focused window, as a real key press would.
closed=no
pressed=no
for attempt in 1 2 3 4 5 6 7 8 9 10; do
    if WINDOW=$(timeout 10 xdotool search --sync --name '^kvt demo$' 2>/dev/null | head -n 1) \
        && [ -n "$WINDOW" ] \
        && timeout 5 xdotool windowfocus --sync "$WINDOW" 2>/dev/null \
        && xdotool key Escape; then
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
echo "kvt-demo --window opened on $DISPLAY and closed on Escape"
