#!/bin/sh
# Runs a built tree's whole test suite on sdl12-compat instead of classic
# SDL 1.2: the programs were linked against classic SDL, and COMPAT_DIR in
# front of LD_LIBRARY_PATH makes the loader pick sdl12-compat's
# libSDL-1.2.so.0 instead. First kvt-sdl-version must confirm that it does
# (a wrong folder would otherwise rerun the suite on classic SDL and pass).
# The window tests skip themselves when Xvfb or xdotool is missing; here a
# skipped test fails the run, so that the whole suite has run on it.
#
# usage: scripts/test-compat.sh BUILD COMPAT_DIR JOBS
set -u
BUILD=$1 COMPAT=$2 JOBS=$3

VERSION=$BUILD/tests/support/kvt-sdl-version
[ -x "$VERSION" ] || { echo "$VERSION is missing: build the tree with its tests" >&2; exit 1; }
LD_LIBRARY_PATH=$COMPAT${LD_LIBRARY_PATH:+:$LD_LIBRARY_PATH}
export LD_LIBRARY_PATH
printf 'SDL loaded with LD_LIBRARY_PATH=%s: ' "$LD_LIBRARY_PATH"
"$VERSION" compat || {
    echo "the suite would run on classic SDL, not on sdl12-compat: is Debian's libsdl1.2-compat" \
        "installed, with its libSDL-1.2.so.0 in $COMPAT?" >&2
    exit 1
}

# ctest's status goes through a file, since a pipe would hide it behind tee's.
LOG=$BUILD/test-compat.log
{ (cd "$BUILD" && ctest --output-on-failure --no-tests=error -j "$JOBS"); echo $? >"$LOG.status"; } |
    tee "$LOG"
status=$(cat "$LOG.status")
[ "$status" -eq 0 ] || { echo "the suite failed on sdl12-compat (log: $LOG)" >&2; exit 1; }
# ctest counts a skipped test as passed, and lists it under this heading.
if grep -q '^The following tests did not run:' "$LOG"; then
    echo "tests were skipped on sdl12-compat; every test must run here (log: $LOG):" >&2
    sed -n '/^The following tests did not run:/,/^$/p' "$LOG" | tail -n +2 >&2
    exit 1
fi
echo "the whole suite ran and passed on sdl12-compat"
