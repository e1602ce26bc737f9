#!/bin/sh
# Installs a built kvt into a scratch prefix and proves that a program can
# use it the two ways a user would: CMake's find_package(kvt) with the
# target kvt::kvt, and pkg-config. Also checks the library's SONAME and
# that no internal header was installed.
#
# usage: check_install.sh CMAKE BUILD_DIR CONSUMER_SOURCE WORK_DIR CXX
set -eu
CMAKE=$1 BUILD=$2 CONSUMER=$3 WORK=$4 CXX=$5
PREFIX=$WORK/prefix

fail() { echo "packaging: $*" >&2; exit 1; }

# A make jobserver handed down from `make test` means nothing to the
# builds started here.
unset MAKEFLAGS MFLAGS MAKELEVEL
export SDL_VIDEODRIVER=dummy

rm -rf "$WORK"
mkdir -p "$WORK"
"$CMAKE" --install "$BUILD" --prefix "$PREFIX" >"$WORK/install.log" \
    || fail "cmake --install failed, see $WORK/install.log"

LIB=$(find "$PREFIX" -name libkvt.so -print | head -n 1)
[ -n "$LIB" ] || fail "no libkvt.so under $PREFIX"
SONAME=$(readelf -d "$LIB" | sed -n 's/.*(SONAME).*\[\(.*\)\].*/\1/p')
[ "$SONAME" = "libkvt.so.1" ] || fail "SONAME is '$SONAME', expected libkvt.so.1"
[ -e "$(dirname "$LIB")/libkvt.so.1" ] || fail "libkvt.so.1 is not installed beside $LIB"
[ -f "$PREFIX/include/kvt/kvt.h" ] || fail "kvt/kvt.h is not installed"
if find "$PREFIX/include" -path '*/internal/*' | grep -q .; then
    fail "internal headers were installed: $(find "$PREFIX/include" -path '*/internal/*' | head -n 1)"
fi

# 1. CMake package.
"$CMAKE" -S "$CONSUMER" -B "$WORK/by-cmake" -DCMAKE_PREFIX_PATH="$PREFIX" \
    -DCMAKE_FIND_USE_PACKAGE_REGISTRY=OFF -DCMAKE_CXX_COMPILER="$CXX" >"$WORK/by-cmake.log" 2>&1 \
    || fail "configuring with find_package(kvt) failed, see $WORK/by-cmake.log"
grep -q "^kvt_DIR:PATH=$PREFIX/" "$WORK/by-cmake/CMakeCache.txt" \
    || fail "find_package(kvt) found a kvt outside $PREFIX: $(grep ^kvt_DIR "$WORK/by-cmake/CMakeCache.txt")"
"$CMAKE" --build "$WORK/by-cmake" >>"$WORK/by-cmake.log" 2>&1 \
    || fail "building with kvt::kvt failed, see $WORK/by-cmake.log"
"$WORK/by-cmake/kvt_consumer" || fail "the program built with find_package(kvt) failed"

# 2. pkg-config, from the installed kvt.pc alone.
PKG_CONFIG_PATH=$(dirname "$(find "$PREFIX" -name kvt.pc -print | head -n 1)")
export PKG_CONFIG_PATH
FLAGS=$(pkg-config --cflags --libs kvt) || fail "pkg-config does not know kvt"
# shellcheck disable=SC2086 # the flags are meant to split into words
"$CXX" -std=c++17 -o "$WORK/by-pkg-config" "$CONSUMER/main.cpp" $FLAGS \
    || fail "building with pkg-config flags failed: $FLAGS"
LD_LIBRARY_PATH=$(dirname "$LIB") "$WORK/by-pkg-config" \
    || fail "the program built with pkg-config failed"

echo "packaging: installed to $PREFIX; find_package and pkg-config consumers both ran"
