#!/bin/sh
# Runs the demo headless into a fresh folder and checks every picture it
# reports: each must be a 640x480 PNG with real content, and each of the
# expected pictures must be among them. The demo's other lines are the
# reports of its scripted widget scenes; when REPORTS is given they must
# be exactly the lines of those files, one file per scene in the order the
# demo plays them, separated by spaces. A directory gives its names in an
# order of its own, so each run of consecutive "file: " lines is compared
# sorted: which names it shows and how often, not in which order.
#
# usage: check_pictures.sh RUN DEMO PNG_CHECK OUT_DIR EXPECTED [REPORTS]
# RUN is put before both programs: empty, or an emulator with its options.
# EXPECTED names the pictures that must be there, separated by spaces
# (e.g. "drawing text" for drawing.png and text.png).
set -eu
RUN=$1 DEMO=$2 CHECK=$3 OUT=$4 EXPECTED=$5 REPORTS=${6:-}

# Sorts each run of consecutive "file: " lines in place.
sort_file_runs() {
    awk '/^file: / { if (!run) fflush(); run = 1; print | "LC_ALL=C sort"; next }
         { if (run) close("LC_ALL=C sort"); run = 0; print }
         END { if (run) close("LC_ALL=C sort") }'
}

rm -rf "$OUT"
$RUN "$DEMO" --out "$OUT" >"$OUT.all"
grep -x "$OUT/.*\.png" "$OUT.all" >"$OUT.list" || { echo "the demo reported no picture" >&2; exit 1; }
for name in $EXPECTED; do
    grep -qx "$OUT/$name.png" "$OUT.list" || {
        echo "$name.png is not among the pictures reported:" >&2
        cat "$OUT.list" >&2
        exit 1
    }
done
if [ -n "$REPORTS" ]; then
    grep -vx "$OUT/.*\.png" "$OUT.all" | sort_file_runs >"$OUT.reports" || true
    cat $REPORTS | sort_file_runs >"$OUT.expected-reports"
    diff -u "$OUT.expected-reports" "$OUT.reports" || {
        echo "the scripted scenes' reports differ (- expected, + printed)" >&2
        exit 1
    }
fi
while read -r picture; do
    $RUN "$CHECK" "$picture" 640 480 256
    echo "$picture: 640x480 PNG"
done <"$OUT.list"
