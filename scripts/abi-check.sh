#!/bin/sh
# Compares the ABI of a built libkvt.so with the committed baseline of its
# SONAME, abi/<SONAME>.xml, using libabigail: abidw dumps the ABI of what
# the library exports, as the public headers describe it, and abidiff
# compares the dumps. A change that breaks programs built against the
# baseline fails; additions pass and are reported. With --update the
# baseline is written instead (after a deliberate change, see the README).
#
# usage: scripts/abi-check.sh BUILD_DIR [--update]
set -eu
BUILD=$1 MODE=${2:-check}
cd "$(dirname "$0")/.."
WORK=$(mktemp -d)
trap 'rm -rf "$WORK"' EXIT

LIB=$(find "$BUILD/kvt" -name 'libkvt.so.*' -type f | head -n 1)
[ -n "$LIB" ] || { echo "abi-check: no libkvt.so in $BUILD/kvt" >&2; exit 1; }

SONAME=$(readelf -d "$LIB" | sed -n 's/.*(SONAME).*\[\(.*\)\].*/\1/p')
[ -n "$SONAME" ] || { echo "abi-check: $LIB has no SONAME" >&2; exit 1; }
BASELINE=abi/$SONAME.xml

# Only the installed headers are public: the types of the internal ones
# are dropped. Their paths are those that the debug information names,
# the sources' own. Locations are left out of the dump, so that it does
# not depend on where the tree was built.
set --
for header in $(find "$(pwd)/kvt" -name '*.h' -not -path '*/internal/*' | sort); do
    set -- "$@" --header-file "$header"
done
abidw "$@" --drop-private-types --no-show-locs --no-corpus-path --no-comp-dir-path \
    --out-file "$WORK/current.xml" "$LIB"

if [ "$MODE" = --update ]; then
    mkdir -p abi
    cp "$WORK/current.xml" "$BASELINE"
    echo "abi-check: wrote $BASELINE"
    exit 0
fi
[ -f "$BASELINE" ] || {
    echo "abi-check: no baseline $BASELINE for $SONAME; a new SONAME starts one with" \
        "'make abi-baseline'" >&2
    exit 1
}

# abidiff's status is a bit set: 1 error, 2 usage error, 4 the ABI changed,
# 8 a symbol was removed. Its summary lines count what was removed,
# changed and added; anything removed or changed breaks programs built
# against the baseline, while additions do not.
status=0
abidiff "$BASELINE" "$WORK/current.xml" >"$WORK/report" || status=$?
if [ $((status & 3)) -ne 0 ]; then
    cat "$WORK/report" >&2
    echo "abi-check: abidiff failed (status $status)" >&2
    exit 1
fi
broken=$(sed -n 's/.*changes summary: \([0-9]*\) Removed[^,]*, \([0-9]*\) Changed.*/\1 \2/p
                 s/.*symbols changes summary: \([0-9]*\) Removed.*/\1/p' "$WORK/report" |
    tr ' ' '\n' | awk '{ n += $1 } END { print n + 0 }')
if [ $((status & 8)) -ne 0 ] || [ "$broken" -ne 0 ]; then
    cat "$WORK/report" >&2
    echo "abi-check: $SONAME breaks the ABI of $BASELINE; either undo the change or" \
        "bump the SONAME and renew the baseline (README, 'The ABI')" >&2
    exit 1
fi
if [ $((status & 4)) -ne 0 ]; then
    cat "$WORK/report"
    echo "abi-check: $SONAME adds to the ABI of $BASELINE (compatible)"
else
    echo "abi-check: $SONAME has the ABI of $BASELINE"
fi
