#!/bin/sh
# Static checks of the library and the tools: cppcheck, then clang-tidy with
# the checks of .clang-tidy on every .cpp. Any finding fails the run.
# BUILD is a tree configured with CMAKE_EXPORT_COMPILE_COMMANDS=ON and the
# tests on, so that the tools' tests are in its compile database too.
#
# usage: scripts/lint.sh BUILD JOBS
set -eu
BUILD=$1 JOBS=$2
cd "$(dirname "$0")/.."

echo "cppcheck: kvt/ tools/"
mkdir -p "$BUILD/cppcheck"
# SDL's, POSIX's and GoogleTest's functions and macros come from cppcheck's
# own descriptions of them rather than from their headers, which it would
# otherwise parse and check with every file. Inline suppressions carry
# their reason beside them.
cppcheck --std=c++17 --language=c++ -I. -D_FILE_OFFSET_BITS=64 \
    --library=sdl --library=posix --library=googletest \
    --enable=warning,performance,portability --inline-suppr --error-exitcode=1 \
    --cppcheck-build-dir="$BUILD/cppcheck" -q -j "$JOBS" kvt tools

echo "clang-tidy: every .cpp of kvt/ tools/"
# clang-tidy's counts of the warnings it hid (those of SDL's headers) go to
# stderr, which is kept apart and shown only when the run fails. Each file
# gets a process of its own: with several files in one process, clang-tidy
# 14's analyzer once reported, in CI only, a va_list on a line without one,
# which points at state kept from an earlier file.
status=0
find kvt tools -name '*.cpp' | sort |
    xargs -P "$JOBS" -n 1 clang-tidy -p "$BUILD" --quiet 2>"$BUILD/clang-tidy.err" || status=$?
if [ "$status" -ne 0 ]; then
    grep -v -e 'warnings\? generated\.$' -e '^Suppressed ' -e '^Use -header-filter' \
        "$BUILD/clang-tidy.err" >&2 || true
    echo "clang-tidy found problems (above)" >&2
    exit 1
fi
echo "lint: clean"
