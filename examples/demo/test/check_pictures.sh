#!/bin/sh
# Runs the demo headless on a screen of the given size and depth into a
# fresh folder, and checks every picture it reports: each must be a PNG of
# the screen's size with real content, drawn at the screen's depth as far
# as its colours tell (see kvt-png-check), and the pictures must be
# exactly the expected ones. The demo's other lines are the reports of its
# scripted widget scenes; when REPORTS is given they must be exactly the
# lines of those files, one file per scene in the order the demo plays
# them, separated by spaces. A directory gives its names in an order of
# its own, so each run of consecutive "file: " lines is compared sorted:
# which names it shows and how often, not in which order.
#
# usage: check_pictures.sh RUN DEMO PNG_CHECK OUT_DIR SCREEN EXPECTED [REPORTS]
# RUN is put before both programs: empty, or an emulator with its options.
# SCREEN is WIDTHxHEIGHTxDEPTH, e.g. 320x240x16.
# EXPECTED names the pictures that must be there, separated by spaces
# (e.g. "drawing text" for drawing.png and text.png).
set -eu
RUN=$1 DEMO=$2 CHECK=$3 OUT=$4 SCREEN=$5 EXPECTED=$6 REPORTS=${7:-}

IFS=x read -r WIDTH HEIGHT DEPTH <<END
$SCREEN
END
# 5-6-5 swallows the background's fine grain, which leaves a widget scene
# about a hundred colours, and an 8-bit palette of 3-3-2 about twenty.
case $DEPTH in 8) MIN_COLOURS=16 ;; 16) MIN_COLOURS=64 ;; *) MIN_COLOURS=256 ;; esac

# Sorts each run of consecutive "file: " lines in place.
sort_file_runs() {
    awk '/^file: / { if (!run) fflush(); run = 1; print | "LC_ALL=C sort"; next }
         { if (run) close("LC_ALL=C sort"); run = 0; print }
         END { if (run) close("LC_ALL=C sort") }'
}

rm -rf "$OUT"
$RUN "$DEMO" --size "${WIDTH}x$HEIGHT" --depth "$DEPTH" --out "$OUT" >"$OUT.all"
grep -x "$OUT/.*\.png" "$OUT.all" >"$OUT.list" || { echo "the demo reported no picture" >&2; exit 1; }
for name in $EXPECTED; do echo "$OUT/$name.png"; done | LC_ALL=C sort >"$OUT.expected-list"
LC_ALL=C sort "$OUT.list" | diff -u "$OUT.expected-list" - || {
    echo "the pictures reported are not the expected ones (- expected, + reported)" >&2
    exit 1
}
if [ -n "$REPORTS" ]; then
    grep -vx "$OUT/.*\.png" "$OUT.all" | sort_file_runs >"$OUT.reports" || true
    cat $REPORTS | sort_file_runs >"$OUT.expected-reports"
    diff -u "$OUT.expected-reports" "$OUT.reports" || {
        echo "the scripted scenes' reports differ (- expected, + printed)" >&2
        exit 1
    }
fi
while read -r picture; do
    $RUN "$CHECK" "$picture" "$WIDTH" "$HEIGHT" "$MIN_COLOURS" "$DEPTH"
    echo "$picture: ${WIDTH}x$HEIGHT PNG from a $DEPTH-bit screen"
done <"$OUT.list"
