#!/bin/sh
# Types into the controls scene of the demo in a real window on a private
# X server: xdotool clicks into the name field and types a short text, one
# key event each, whose characters reach the field only because the demo
# turned on SDL's key translation; then it clicks the scroll bar's down
# button. What the demo prints for each focus move, text change and value
# change must be exactly the transcript below. Exit code 77 (skipped) when
# Xvfb or xdotool is missing, or no X server can be started.
#
# usage: check_controls_window.sh DEMO
set -u
DEMO=$1
. "$(dirname "$0")/x_session.sh"

xs_start_demo "$DEMO" controls

# In window coordinates, as the scene lays them out: the middle of the
# name field, and of the scroll bar's down button.
NAME="286 178"
SCROLL_DOWN="144 270"

click() { xs_do mousemove --window "$WINDOW" $1 && sleep 0.1 && xs_do click 1; }

click "$NAME"
xs_settle 1
# The space must type too: the window keeps Space for itself only where
# no text field has the focus.
xs_do type --delay 50 "Hi kvt"
xs_settle 7
click "$SCROLL_DOWN"
xs_settle 9
xs_do key Escape

tries=0
while kill -0 "$DEMO_PID" 2>/dev/null && [ $tries -lt 50 ]; do
    sleep 0.1
    tries=$((tries + 1))
done
kill "$DEMO_PID" 2>/dev/null && { echo "the demo did not end on Escape" >&2; exit 1; }

cat >"$XS_WORK/expected" <<'END'
focus: name
text: name = "H"
text: name = "Hi"
text: name = "Hi "
text: name = "Hi k"
text: name = "Hi kv"
text: name = "Hi kvt"
focus: scroll
value: scroll = 1
END
if ! diff -u "$XS_WORK/expected" "$OUT" >"$XS_WORK/diff"; then
    echo "the demo's reports differ from what the input should give (- expected, + printed):" >&2
    cat "$XS_WORK/diff" >&2
    cat "$XS_WORK/err" >&2
    exit 1
fi
echo "kvt-demo --window --scene controls on $DISPLAY: typed text reached the name field"
