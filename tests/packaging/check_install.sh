#!/bin/sh
# Installs a built kvt into a scratch prefix and proves that a program can
# use it the two ways a user would: CMake's find_package(kvt) with the
# target kvt::kvt, and pkg-config. Also checks the library's SONAME and
# that no internal header was installed. Then does the same where
# pkg-config knows SDL 1.2 only as sdl12_compat (upstream sdl12-compat's
# name), after checking that the kvt source tree configured there finds
# SDL and writes a kvt.pc that requires that name.
#
# usage: check_install.sh CMAKE BUILD_DIR CONSUMER_SOURCE WORK_DIR CXX CC
#                         KVT_SOURCE INSTALL_LIBDIR
set -eu
CMAKE=$1 BUILD=$2 CONSUMER=$3 WORK=$4 CXX=$5 CC=$6 SOURCE=$7 LIBDIR=$8
PREFIX=$WORK/prefix
PC_DIR=$PREFIX/$LIBDIR/pkgconfig

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
[ -f "$PC_DIR/kvt.pc" ] || fail "kvt.pc is not installed in $PC_DIR"

# Configures and builds the consumer through find_package(kvt), in
# $WORK/$1, and runs it; $2 says under which conditions, for the messages.
use_find_package() {
    log=$WORK/$1.log
    "$CMAKE" -S "$CONSUMER" -B "$WORK/$1" -DCMAKE_PREFIX_PATH="$PREFIX" \
        -DCMAKE_FIND_USE_PACKAGE_REGISTRY=OFF -DCMAKE_CXX_COMPILER="$CXX" >"$log" 2>&1 \
        || fail "configuring with find_package(kvt) $2 failed, see $log"
    grep -q "^kvt_DIR:PATH=$PREFIX/" "$WORK/$1/CMakeCache.txt" \
        || fail "find_package(kvt) $2 found a kvt outside $PREFIX: $(grep ^kvt_DIR "$WORK/$1/CMakeCache.txt")"
    "$CMAKE" --build "$WORK/$1" >>"$log" 2>&1 \
        || fail "building with kvt::kvt $2 failed, see $log"
    "$WORK/$1/kvt_consumer" || fail "the program built with find_package(kvt) $2 failed"
}

# Builds the consumer with the flags pkg-config gives for kvt, as
# $WORK/$1, and runs it; $2 as above.
use_pkg_config() {
    flags=$(pkg-config --cflags --libs kvt) \
        || fail "pkg-config $2 cannot resolve kvt or the SDL module its kvt.pc requires"
    # shellcheck disable=SC2086 # the flags are meant to split into words
    "$CXX" -std=c++17 -o "$WORK/$1" "$CONSUMER/main.cpp" $flags \
        || fail "building with pkg-config flags $2 failed: $flags"
    LD_LIBRARY_PATH=$(dirname "$LIB") "$WORK/$1" \
        || fail "the program built with pkg-config $2 failed"
}

# 1. CMake package.
use_find_package by-cmake "(system SDL)"

# 2. pkg-config, from the installed kvt.pc alone.
PKG_CONFIG_PATH=$PC_DIR
export PKG_CONFIG_PATH
use_pkg_config by-pkg-config "(system SDL)"

# 3. A system where SDL 1.2 is sdl12_compat.pc only, as upstream
# sdl12-compat installs it: the system's own description of SDL renamed.
# pkg-config sees that folder and kvt's, never the system's own folders.
# Run twice: with upstream's `Provides: sdl`, through which pkgconf also
# answers to `sdl`, and without it, which is how the freedesktop
# pkg-config sees the file (it ignores Provides).
SDL_PC_DIR=$(pkg-config --variable=pcfiledir sdl 2>/dev/null \
    || pkg-config --variable=pcfiledir sdl12_compat 2>/dev/null) \
    || fail "pkg-config knows neither sdl nor sdl12_compat on this system"
if [ -f "$SDL_PC_DIR/sdl.pc" ]; then SDL_PC=$SDL_PC_DIR/sdl.pc; else SDL_PC=$SDL_PC_DIR/sdl12_compat.pc; fi
[ -f "$SDL_PC" ] || fail "neither sdl.pc nor sdl12_compat.pc is in $SDL_PC_DIR"
SDL_VERSION=$(sed -n 's/^Version: *//p' "$SDL_PC")
cp "$PC_DIR/kvt.pc" "$WORK/installed-kvt.pc"
unset PKG_CONFIG_PATH

# $1 names the case; $2 is the Provides line of the sdl12_compat.pc, or empty.
check_sdl12_compat_only() {
    case_dir=$WORK/sdl12_compat-$1
    what="(only sdl12_compat.pc, $1)"
    mkdir -p "$case_dir/pkgconfig"
    {
        sed -e '/^Provides:/d' -e 's/^Name:.*/Name: sdl12_compat/' "$SDL_PC"
        [ -z "$2" ] || echo "$2"
    } >"$case_dir/pkgconfig/sdl12_compat.pc"

    PKG_CONFIG_LIBDIR=$case_dir/pkgconfig:$PC_DIR
    export PKG_CONFIG_LIBDIR
    pkg-config --exists sdl12_compat \
        || fail "pkg-config does not read the made-up $case_dir/pkgconfig/sdl12_compat.pc"
    if pkg-config --exists sdl && [ "$(pkg-config --variable=pcfiledir sdl)" != "$case_dir/pkgconfig" ]; then
        fail "the system's sdl.pc is still visible with PKG_CONFIG_LIBDIR=$PKG_CONFIG_LIBDIR"
    fi

    # a. The kvt tree itself, configured there (the library alone; only the
    # SDL lookup and kvt.pc matter), with the install layout of the tree
    # under test so that its kvt.pc can stand in for the installed one.
    "$CMAKE" -S "$SOURCE" -B "$case_dir/build" -DKVT_BUILD_TESTS=OFF -DKVT_BUILD_EXAMPLES=OFF \
        -DKVT_BUILD_BENCH=OFF -DCMAKE_INSTALL_LIBDIR="$LIBDIR" \
        -DCMAKE_C_COMPILER="$CC" -DCMAKE_CXX_COMPILER="$CXX" >"$case_dir/build.log" 2>&1 \
        || fail "configuring kvt $what failed (SDL not found?), see $case_dir/build.log"
    grep -q '^SDL_FOUND:INTERNAL=1$' "$case_dir/build/CMakeCache.txt" \
        || fail "configuring kvt $what did not find SDL, see $case_dir/build.log"
    requires=$(sed -n 's/^Requires: *//p' "$case_dir/build/kvt.pc")
    [ "$requires" = "sdl12_compat" ] \
        || fail "kvt.pc configured $what requires '$requires', expected sdl12_compat"
    grep -v '^Requires:' "$WORK/installed-kvt.pc" >"$case_dir/installed-kvt.pc.rest"
    grep -v '^Requires:' "$case_dir/build/kvt.pc" >"$case_dir/kvt.pc.rest"
    cmp -s "$case_dir/installed-kvt.pc.rest" "$case_dir/kvt.pc.rest" \
        || fail "kvt.pc configured $what differs from the installed one beyond Requires:" \
            "$(diff "$WORK/installed-kvt.pc" "$case_dir/build/kvt.pc")"

    # b. The installed kvt, used there through its CMake package, and through
    # pkg-config with the kvt.pc that an install from (a) would have written.
    use_find_package "sdl12_compat-$1/by-cmake" "$what"
    cp "$case_dir/build/kvt.pc" "$PC_DIR/kvt.pc"
    use_pkg_config "sdl12_compat-$1/by-pkg-config" "$what"
}
check_sdl12_compat_only with-provides "Provides: sdl = $SDL_VERSION"
check_sdl12_compat_only without-provides ""

echo "packaging: installed to $PREFIX; find_package and pkg-config consumers both ran," \
    "with the system's SDL and with only sdl12_compat.pc"
