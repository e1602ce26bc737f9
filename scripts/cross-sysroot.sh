#!/bin/sh
# Builds the libraries that a cross build links against into a sysroot
# folder: SDL 1.2, zlib and libpng from Debian's own source packages, and
# GoogleTest from the sources that libgtest-dev ships, all with Debian's
# cross compiler for TRIPLET. Each part is built once; a part already in
# the sysroot is left alone.
#
#   scripts/cross-sysroot.sh TRIPLET [BUILD_DIR]
#
# TRIPLET is one of
#   arm-linux-gnueabihf   32-bit ARM, hard float    (default BUILD_DIR: build-armhf)
#   aarch64-linux-gnu     64-bit ARM                (default BUILD_DIR: build-aarch64)
#   mipsel-linux-gnu      32-bit MIPS little-endian (default BUILD_DIR: build-mipsel)
#
# Fills BUILD_DIR/sysroot; sources, build trees and logs go to
# BUILD_DIR/deps. Needs g++-TRIPLET, dpkg-dev, autoconf, automake, libtool,
# make, cmake and libgtest-dev (`make test-armhf`, `make test-aarch64` and
# `make test-mipsel` install them).
set -e

ROOT=$(cd "$(dirname "$0")/.." && pwd)
HOST=$1
# The short names match the build folders and cmake/cross-toolchain.cmake.
case $HOST in
    arm-linux-gnueabihf) NAME=armhf ;;
    aarch64-linux-gnu) NAME=aarch64 ;;
    mipsel-linux-gnu) NAME=mipsel ;;
    *)
        echo "usage: $0 arm-linux-gnueabihf|aarch64-linux-gnu|mipsel-linux-gnu [BUILD_DIR]" >&2
        exit 2 ;;
esac
OUT=${2:-$ROOT/build-$NAME}
mkdir -p "$OUT"
OUT=$(cd "$OUT" && pwd)
SYSROOT=$OUT/sysroot
DEPS=$OUT/deps
LOGS=$DEPS/logs
APT_DIR=$DEPS/apt
JOBS=$(nproc)

# apt-get or apt-cache on a private state in the build tree: the source
# indexes land there, and the system's apt configuration and lists are
# left as they are.
apt_private() {
    tool=$1
    shift
    "$tool" -q -o Dir::Etc::SourceList=/dev/null \
        -o Dir::Etc::SourceParts="$APT_DIR/sources.list.d" \
        -o Dir::State::Lists="$APT_DIR/lists" \
        -o Dir::Cache::pkgcache= -o Dir::Cache::srcpkgcache= \
        -o APT::Sandbox::User=root "$@"
}

# Writes a deb-src entry for every deb entry of this Debian release in the
# system's own sources, one-line and deb822 forms alike; entries of other
# repositories are left out, as they may publish no sources.
derive_source_entries() {
    # shellcheck disable=SC1091
    codename=$(. /etc/os-release && echo "$VERSION_CODENAME")
    for list in /etc/apt/sources.list /etc/apt/sources.list.d/*.list; do
        [ -f "$list" ] || continue
        awk -v cn="$codename" '$1 == "deb" {
            plain = $0; gsub(/\[[^]]*\]/, "", plain); split(plain, field)
            if (index(field[3], cn) != 1) next
            sub(/^deb/, "deb-src"); print }' "$list"
    done > "$APT_DIR/sources.list.d/derived.list"
    for list in /etc/apt/sources.list.d/*.sources; do
        [ -f "$list" ] || continue
        awk -v cn="$codename" 'BEGIN { RS = "" }
        {
            n = split($0, line, "\n"); text = ""; deb = 0; ours = 0
            for (i = 1; i <= n; i++) {
                if (line[i] ~ /^Types:/ && line[i] ~ /[ \t]deb([ \t]|$)/) {
                    line[i] = "Types: deb-src"; deb = 1
                }
                if (line[i] ~ /^Suites:/) {
                    split(line[i], suite, /[ \t]+/)
                    if (index(suite[2], cn) == 1) ours = 1
                }
                text = text line[i] "\n"
            }
            if (deb && ours) printf "%s\n", text
        }' "$list"
    done > "$APT_DIR/sources.list.d/derived.sources"
    if ! grep -q . "$APT_DIR/sources.list.d/derived.list" \
            "$APT_DIR/sources.list.d/derived.sources"; then
        echo "cross-sysroot: no deb entry for $codename in /etc/apt to derive deb-src from" >&2
        return 1
    fi
}

# Fetches the source indexes once per run of this script.
source_index() {
    [ -f "$APT_DIR/fresh" ] && return 0
    rm -rf "$APT_DIR"
    mkdir -p "$APT_DIR/lists/partial" "$APT_DIR/sources.list.d"
    derive_source_entries
    apt_private apt-get update
    touch "$APT_DIR/fresh"
}

# Unpacks Debian's source package SOURCE into DEPS/SOURCE and prints the
# unpacked folder. The version of the host's BINARY package comes first, so
# that both sides build the same code; when the archive no longer serves
# it, the newest version it does serve.
debian_source() {
    source=$1 binary=$2
    source_index >&2 || return 1
    rm -rf "${DEPS:?}/$source"
    mkdir -p "$DEPS/$source"
    host=$(dpkg-query -W -f='${source:Version}' "$binary" 2>/dev/null || true)
    offered=$(apt_private apt-cache showsrc "$source" | sed -n 's/^Version: //p' | sort -rV)
    for version in $host $offered; do
        if (cd "$DEPS/$source" && apt_private apt-get source "$source=$version") >&2; then
            find "$DEPS/$source" -mindepth 1 -maxdepth 1 -type d
            return 0
        fi
    done
    echo "cross-sysroot: no version of $source could be fetched" >&2
    return 1
}

# Regenerates the build system as Debian's own build does (dh_autoreconf),
# so that Debian's patches to configure.ac and Makefile.am take effect.
debian_autoreconf() {
    autoreconf -f -i
}

# Only the dummy video and audio drivers: nothing that needs a library
# other than libc, so the result runs anywhere qemu does.
SDL_CONFIGURE_FLAGS="--disable-static --disable-rpath --disable-pth
    --disable-oss --disable-alsa --disable-esd --disable-pulseaudio
    --disable-arts --disable-nas --disable-joystick --disable-cdrom
    --disable-video-x11 --disable-dga --disable-video-dga
    --disable-video-fbcon --disable-video-directfb --disable-video-ps2gs
    --disable-video-ps3 --disable-video-svga --disable-video-vgl
    --disable-video-wscons --disable-video-aalib --disable-video-caca
    --disable-video-ggi --disable-video-nanox --disable-video-qtopia
    --disable-video-picogui --disable-video-photon --disable-video-cocoa
    --disable-video-opengl --disable-osmesa-shared --disable-input-events
    --disable-input-tslib --enable-video-dummy"

build_sdl() {
    src=$(debian_source libsdl1.2 libsdl1.2-dev)
    cd "$src"
    # debian/rules runs autoreconf with SDL's own m4 folder, and without
    # autoheader, which would overwrite SDL's hand-written config header.
    AUTOHEADER=true \
    ACLOCAL="aclocal --force --install -I /usr/share/aclocal/ -I acinclude" \
    LIBTOOLIZE="libtoolize -fi" debian_autoreconf
    # An empty pkg-config path keeps the host's .pc files out of the checks.
    mkdir -p "$DEPS/empty-pkgconfig"
    # shellcheck disable=SC2086
    PKG_CONFIG_LIBDIR="$DEPS/empty-pkgconfig" ./configure --host="$HOST" \
        --prefix="$SYSROOT" $SDL_CONFIGURE_FLAGS
    make -j"$JOBS"
    make install
}

build_zlib() {
    src=$(debian_source zlib zlib1g-dev)
    cd "$src"
    # zlib's own configure script takes the cross tools from CHOST.
    CHOST=$HOST ./configure --prefix="$SYSROOT"
    make -j"$JOBS"
    make install
}

build_png() {
    src=$(debian_source libpng1.6 libpng-dev)
    cd "$src"
    debian_autoreconf
    PKG_CONFIG_LIBDIR="$SYSROOT/lib/pkgconfig" \
    CPPFLAGS="-I$SYSROOT/include" LDFLAGS="-L$SYSROOT/lib" \
        ./configure --host="$HOST" --prefix="$SYSROOT" --disable-static
    make -j"$JOBS"
    make install
}

build_gtest() {
    rm -rf "$DEPS/gtest"
    cmake -S /usr/src/googletest -B "$DEPS/gtest" \
        -DCMAKE_TOOLCHAIN_FILE="$ROOT/cmake/cross-toolchain.cmake" \
        -DKVT_CROSS_TRIPLET="$HOST" -DKVT_CROSS_SYSROOT="$SYSROOT" \
        -DCMAKE_BUILD_TYPE=Release \
        -DCMAKE_INSTALL_PREFIX="$SYSROOT"
    cmake --build "$DEPS/gtest" -j "$JOBS"
    cmake --install "$DEPS/gtest"
}

# Builds one part unless its mark is in the sysroot, its output going to
# DEPS/logs/PART.log. A part that fails shows the end of its log and stops
# the script.
build_once() {
    part=$1
    [ -f "$SYSROOT/.built-$part" ] && return 0
    echo "cross-sysroot: building $part for $HOST into $SYSROOT"
    mkdir -p "$SYSROOT" "$LOGS"
    set +e
    ( set -e; "build_$part" ) > "$LOGS/$part.log" 2>&1
    status=$?
    set -e
    if [ $status -ne 0 ]; then
        echo "cross-sysroot: building $part failed; the end of $LOGS/$part.log:" >&2
        tail -n 30 "$LOGS/$part.log" >&2
        exit 1
    fi
    touch "$SYSROOT/.built-$part"
}

# A sysroot holds one target's libraries; the marks of another target's
# parts must not pass for this one's.
if [ -f "$SYSROOT/.triplet" ] && [ "$(cat "$SYSROOT/.triplet")" != "$HOST" ]; then
    echo "cross-sysroot: $SYSROOT holds $(cat "$SYSROOT/.triplet") libraries, not $HOST ones" >&2
    exit 1
fi
mkdir -p "$SYSROOT"
echo "$HOST" > "$SYSROOT/.triplet"

rm -f "$APT_DIR/fresh"
build_once sdl
build_once zlib
build_once png
build_once gtest
