# Shell functions for the tests that open the demo's window on a private X
# server (Xvfb) and drive it with xdotool. Sourced, not run; it sets
# XS_WORK, a scratch folder removed on exit together with the server.
#
#   xs_require TOOL...       skips the test (exit 77) when a tool is missing
#   xs_start_server          starts Xvfb on a free display, exports DISPLAY;
#                            skips the test when no server can be started
#   xs_do ARG...             xdotool ARG..., given at most 5 seconds
#   xs_focus_window NAME PID finds the window titled NAME, gives it the
#                            keyboard focus and prints its id; false when
#                            that failed for 10 tries or PID has ended
#   xs_start_demo DEMO SCENE starts the demo's window on SCENE with its
#                            stdout in $OUT, focuses it and sets DEMO_PID
#                            and WINDOW; skips or fails as the above do
#   xs_settle N              waits (10 s at most) until $OUT has N lines
#
# SDL 1.2 on a bare X server has no window manager to give its window the
# focus, so the window is focused explicitly before any key is sent.

XS_WORK=$(mktemp -d)
XS_SERVER=""
xs_cleanup() {
    [ -n "$XS_SERVER" ] && kill "$XS_SERVER" 2>/dev/null
    rm -rf "$XS_WORK"
}
trap xs_cleanup EXIT

xs_require() {
    for tool in "$@"; do
        command -v "$tool" >/dev/null || { echo "skipped: $tool is not installed"; exit 77; }
    done
}

xs_start_server() {
    # -displayfd lets the server choose a free display number and report it.
    Xvfb -displayfd 3 -screen 0 800x600x24 -nolisten tcp 3>"$XS_WORK/display" \
        2>"$XS_WORK/xvfb.log" &
    XS_SERVER=$!
    tries=0
    while [ ! -s "$XS_WORK/display" ]; do
        tries=$((tries + 1))
        if [ $tries -gt 100 ] || ! kill -0 "$XS_SERVER" 2>/dev/null; then
            echo "skipped: no X server could be started; Xvfb said:"
            cat "$XS_WORK/xvfb.log"
            exit 77
        fi
        sleep 0.1
    done
    DISPLAY=:$(head -n 1 "$XS_WORK/display")
    export DISPLAY
}

# A stuck X server must fail the test, not hang it.
xs_do() {
    timeout 5 xdotool "$@"
}

# The window may be found before it is mapped and can take focus, so the
# search and the focusing are tried again while the program runs.
xs_focus_window() {
    for attempt in 1 2 3 4 5 6 7 8 9 10; do
        kill -0 "$2" 2>/dev/null || return 1
        window=$(timeout 10 xdotool search --sync --name "$1" 2>/dev/null | head -n 1)
        if [ -n "$window" ] && xs_do windowfocus --sync "$window" 2>/dev/null; then
            echo "$window"
            return 0
        fi
        sleep 0.5
    done
    return 1
}

xs_start_demo() {
    xs_require Xvfb xdotool timeout
    xs_start_server
    OUT=$XS_WORK/out
    timeout 60 "$1" --window --scene "$2" >"$OUT" 2>"$XS_WORK/err" &
    DEMO_PID=$!
    WINDOW=$(xs_focus_window '^kvt demo$' "$DEMO_PID") || {
        echo "the demo's window could not be found and focused:" >&2
        cat "$XS_WORK/err" >&2
        exit 1
    }
}

xs_settle() {
    tries=0
    while [ "$(wc -l <"$OUT")" -lt "$1" ] && [ $tries -lt 100 ]; do
        sleep 0.1
        tries=$((tries + 1))
    done
}
