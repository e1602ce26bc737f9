#!/bin/sh
# Drives the file dialogs of the demo's main screen in a real window on a
# private X server. A click on "Open..." opens the open dialog on the
# demo's sample folder; a click on its first name and on OK close it, and
# the demo must print that name, one of the sample .txt files (the folder
# gives its names in an order of its own). "Save..." opens the save
# dialog; xdotool types a name into its field, OK closes it, and the demo
# must print the name with ".txt" added; a second save with "notes.txt"
# typed keeps that name as it is. Exit code 77 (skipped) when Xvfb or
# xdotool is missing, or no X server can be started.
#
# usage: check_dialogs_window.sh DEMO
set -u
DEMO=$1
. "$(dirname "$0")/x_session.sh"

xs_start_demo "$DEMO" main

# In window coordinates, as the main scene lays them out: its two buttons,
# and in the dialog (140, 70, 360x340) the first row of the list, the save
# dialog's field and the OK button.
OPEN="87 115"
SAVE="209 115"
FIRST_ROW="205 108"
FIELD="320 354"
OK="230 392"

click() { xs_do mousemove --window "$WINDOW" $1 && sleep 0.2 && xs_do click 1 && sleep 0.2; }
save_as() {
    click "$SAVE"; sleep 0.5
    click "$FIELD"; xs_do type --delay 50 "$1"; sleep 0.3
    click "$OK"
}

click "$OPEN"; sleep 0.5
click "$FIRST_ROW"
click "$OK"
xs_settle 1
save_as story
xs_settle 2
save_as notes.txt
xs_settle 3
xs_do key Escape

tries=0
while kill -0 "$DEMO_PID" 2>/dev/null && [ $tries -lt 50 ]; do
    sleep 0.1
    tries=$((tries + 1))
done
kill "$DEMO_PID" 2>/dev/null && { echo "the demo did not end on Escape" >&2; exit 1; }

fail() {
    echo "$1; the demo printed:" >&2
    cat "$OUT" "$XS_WORK/err" >&2
    exit 1
}
[ "$(wc -l <"$OUT")" -eq 3 ] || fail "three lines were expected"
opened=$(sed -n 1p "$OUT")
case "$opened" in
"open: alpha.txt" | "open: beta.txt" | "open: gamma.txt" | "open: notes.v2.txt" | "open: todo.txt") ;;
*) fail "the open dialog did not give one of the sample .txt names" ;;
esac
[ "$(sed -n 2p "$OUT")" = "save: story.txt" ] || fail "the save dialog did not give story.txt"
[ "$(sed -n 3p "$OUT")" = "save: notes.txt" ] || fail "the save dialog did not keep notes.txt"
echo "kvt-demo --window --scene main on $DISPLAY: $opened, then story.txt and notes.txt saved"
