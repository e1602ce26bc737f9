#!/bin/sh
# The pictures that the README shows, drawn by the demo. "write" puts them
# into DIR (make docs-pictures renews docs/pictures/ so); "check" draws
# them into SCRATCH and compares each, pixel for pixel, with the one in
# DIR, and fails when one differs or is missing, or when DIR holds a
# picture that is not drawn here. Both run the demo on classic SDL 1.2,
# whatever LD_LIBRARY_PATH says, since the handheld drawing differs on
# sdl12-compat (see test/compat_differences.txt); SDL_VERSION
# (kvt-sdl-version) confirms that classic SDL is the one loaded.
#
# usage: docs_pictures.sh write DEMO SDL_VERSION DIR
#        docs_pictures.sh check DEMO SDL_VERSION DIR PNG_CHECK SCRATCH
set -eu
MODE=$1 DEMO=$2 VERSION=$3 DIR=$4
. "$(dirname "$0")/test/classic_sdl.sh"

# The picture in DIR, the screen it is drawn on, the scene that draws it
# and the demo's name for it.
PICTURES='
desktop-main          640x480x32 main    main
handheld-main         320x240x16 main    main
handheld-drawing      320x240x16 drawing drawing
handheld-dialog-open  320x240x16 main    dialog-open
'

# Draws every picture of the list into the folder $1.
draw() {
    if ! use_classic_sdl "$VERSION"; then
        echo "cannot run the demo on classic SDL 1.2 (LD_LIBRARY_PATH=$LD_LIBRARY_PATH)" >&2
        exit 1
    fi
    echo "$PICTURES" | awk 'NF { print $2, $3 }' | sort -u | while read -r screen scene; do
        size=${screen%x*} depth=${screen##*x}
        "$DEMO" --size "$size" --depth "$depth" --scene "$scene" --out "$1/$screen" >/dev/null
    done
    echo "$PICTURES" | awk 'NF' | while read -r name screen scene picture; do
        cp "$1/$screen/$picture.png" "$1/$name.png"
    done
}

# Compares the pictures drawn into $SCRATCH with those of $DIR.
compare() {
    failed=0
    for name in $(echo "$PICTURES" | awk 'NF { print $1 }'); do
        if [ ! -e "$DIR/$name.png" ]; then
            echo "$DIR/$name.png is missing"; failed=1; continue
        fi
        result=$("$CHECK" --compare "$DIR/$name.png" "$SCRATCH/$name.png") && continue
        echo "$DIR/$name.png no longer matches what the demo draws: $result"; failed=1
    done
    for committed in "$DIR"/*.png; do
        [ -e "$committed" ] || continue
        name=$(basename "$committed" .png)
        echo "$PICTURES" | awk -v n="$name" '$1 == n { found = 1 } END { exit !found }' ||
            { echo "$committed is not one of the pictures that the demo draws"; failed=1; }
    done
    [ $failed -eq 0 ] || { echo "renew the pictures with: make docs-pictures" >&2; exit 1; }
    echo "the $(echo "$PICTURES" | awk 'NF' | wc -l) pictures of $DIR match what the demo draws"
}

case $MODE in
write)
    scratch=$(mktemp -d)
    trap 'rm -rf "$scratch"' EXIT
    draw "$scratch"
    mkdir -p "$DIR"
    rm -f "$DIR"/*.png
    for name in $(echo "$PICTURES" | awk 'NF { print $1 }'); do
        cp "$scratch/$name.png" "$DIR/$name.png"
        echo "$DIR/$name.png: $(wc -c <"$DIR/$name.png") bytes"
    done
    ;;
check)
    CHECK=$5 SCRATCH=$6
    rm -rf "$SCRATCH"
    draw "$SCRATCH"
    compare
    ;;
*)
    echo "usage: $0 write DEMO SDL_VERSION DIR | check DEMO SDL_VERSION DIR PNG_CHECK SCRATCH" >&2
    exit 2
    ;;
esac
