#!/bin/sh
# Drives the buttons scene of the demo in a real window on a private X
# server: xdotool moves the pointer, clicks, drags and types there, and
# what the demo prints for each click, focus move and value change must
# be exactly the transcript below. Exit code 77 (skipped) when Xvfb or
# xdotool is missing, or no X server can be started.
#
# usage: check_buttons_window.sh DEMO
set -u
DEMO=$1
. "$(dirname "$0")/x_session.sh"

xs_start_demo "$DEMO" buttons

# Centres of the widgets, in window coordinates, as the scene lays them out.
CANCEL="196 119"
APPLY="304 119"
PICTURE="231 189"
SOUND="268 260"
EMPTY="300 180"

point() { xs_do mousemove --window "$WINDOW" $1 && sleep 0.1; }
click() { point "$1" && xs_do click 1; }
key() { xs_do key "$@"; }
# SDL reads the Shift key's state from its key array, which follows the
# events it has taken in, not the one being handled: Shift is held well
# before the Tab and let go well after it.
shift_tab() { xs_do keydown Shift_L && sleep 0.3 && key Tab && sleep 0.3 && xs_do keyup Shift_L; }

click "$CANCEL"                                    # focus, click
click "$PICTURE"                                   # focus, value 1, click
click "$SOUND"                                     # focus, value on, click
point "$APPLY"; xs_do mousedown 1; point "$EMPTY"; xs_do mouseup 1   # focus, no click
key Tab Tab Return                                 # gem, picture, value 2 and no click
xs_settle 12; shift_tab; key Return                   # back to gem, Return clicks it
key Tab Tab Tab Tab Tab Tab Return                 # on to sound, value off and no click
key Tab Return                                     # round to ok, click
xs_settle 23; shift_tab                               # back round to sound
xs_settle 24
key Escape

tries=0
while kill -0 "$DEMO_PID" 2>/dev/null && [ $tries -lt 50 ]; do
    sleep 0.1
    tries=$((tries + 1))
done
kill "$DEMO_PID" 2>/dev/null && { echo "the demo did not end on Escape" >&2; exit 1; }

cat >"$XS_WORK/expected" <<'END'
focus: cancel
clicked: cancel
focus: picture
value: picture = 1
clicked: picture
focus: sound
value: sound = on
clicked: sound
focus: apply
focus: gem
focus: picture
value: picture = 2
focus: gem
clicked: gem
focus: picture
focus: left
focus: up
focus: down
focus: right
focus: sound
value: sound = off
focus: ok
clicked: ok
focus: sound
END
if ! diff -u "$XS_WORK/expected" "$OUT" >"$XS_WORK/diff"; then
    echo "the demo's reports differ from what the input should give (- expected, + printed):" >&2
    cat "$XS_WORK/diff" >&2
    cat "$XS_WORK/err" >&2
    exit 1
fi
echo "kvt-demo --window --scene buttons on $DISPLAY reported $(wc -l <"$OUT") lines as expected"
