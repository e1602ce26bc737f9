#!/bin/sh
# Runs the headless demo twice, once on classic SDL 1.2 and once on
# sdl12-compat, and compares the pictures of the two runs pixel for pixel:
# on the default screen (640x480 at 32 bits per pixel) and on a handheld's
# (320x240 at 16, 5-6-5), where the two SDLs' rules for colours differ.
# Both SDLs install libSDL-1.2.so.0, so LD_LIBRARY_PATH picks one: the
# classic run gets the caller's path without any sdl12-compat folder (the
# whole suite may be running on sdl12-compat), the compat run gets
# COMPAT_DIR in front of that, and SDL_VERSION checks before each run that
# the loader really picked the SDL meant.
#
# Every picture must be identical, except those listed in DIFFERENCES (a
# picture name and the reason, one a line, # starts a comment; the
# handheld run's pictures are named handheld/NAME): a listed picture must
# differ, so that a listing outlives neither the difference nor the
# picture. Every picture's outcome is printed, classic first.
#
# usage: compare_sdls.sh DEMO PNG_CHECK SDL_VERSION COMPAT_DIR OUT_DIR DIFFERENCES
set -u
DEMO=$1 CHECK=$2 VERSION=$3 COMPAT=$4 OUT=$5 DIFFERENCES=$6
. "$(dirname "$0")/classic_sdl.sh"

fail() {
    echo "$*" >&2
    exit 1
}

[ -e "$COMPAT/libSDL-1.2.so.0" ] ||
    fail "no sdl12-compat in $COMPAT: install Debian's libsdl1.2-compat (make deps does)"

classic_path=$(classic_library_path "$COMPAT")
compat_path=$COMPAT${classic_path:+:$classic_path}

# The listed names, after checking that each comes with a reason.
listed=$(sed 's/#.*//' "$DIFFERENCES" |
    awk -v table="$DIFFERENCES" '
         NF == 1 { print table ": no reason given for " $1 >"/dev/stderr"; bad = 1 }
         NF > 1 { print $1 }
         END { exit bad }') || exit 1
reason_for() {
    sed 's/#.*//' "$DIFFERENCES" | awk -v name="$1" '$1 == name { $1 = ""; sub(/^ +/, ""); print }'
}

# The demo on one SDL, into FOLDER, with the screen options given; the
# names of its pictures, relative to $OUT/KIND and without .png, are added
# to $OUT/KIND.list.
run_demo() {
    kind=$1 path=$2 folder=$3
    shift 3
    LD_LIBRARY_PATH=$path "$DEMO" --out "$folder" "$@" >"$folder.all" ||
        fail "the demo $* failed on $kind SDL (LD_LIBRARY_PATH=$path)"
    sed -n "s|^$OUT/$kind/\\(.*\\)\\.png\$|\\1|p" "$folder.all" >>"$OUT/$kind.list"
}

rm -rf "$OUT"
mkdir -p "$OUT"
for kind in classic compat; do
    if [ $kind = classic ]; then path=$classic_path; else path=$compat_path; fi
    printf '%s: ' $kind
    LD_LIBRARY_PATH=$path "$VERSION" $kind || exit 1
    run_demo $kind "$path" "$OUT/$kind"
    run_demo $kind "$path" "$OUT/$kind/handheld" --size 320x240 --depth 16
    [ -s "$OUT/$kind.list" ] || fail "the demo reported no picture on $kind SDL"
done
sort "$OUT/classic.list" >"$OUT/classic.sorted"
sort "$OUT/compat.list" >"$OUT/compat.sorted"
cmp -s "$OUT/classic.sorted" "$OUT/compat.sorted" || {
    echo "the two runs wrote different pictures (- classic, + compat):" >&2
    diff -u "$OUT/classic.sorted" "$OUT/compat.sorted" >&2
    exit 1
}
for name in $listed; do
    grep -qx "$name" "$OUT/classic.list" ||
        fail "$name is listed in $DIFFERENCES but the demo wrote no $name.png"
done

echo "pictures, classic SDL against sdl12-compat:"
failed=0
while read -r name; do
    result=$("$CHECK" --compare "$OUT/classic/$name.png" "$OUT/compat/$name.png")
    status=$?
    reason=$(reason_for "$name")
    case $status:${reason:+listed} in
        0:) echo "  $name: identical" ;;
        1:listed) echo "  $name: $result (listed: $reason)" ;;
        0:listed)
            echo "  $name: identical, but listed in $DIFFERENCES as differing ($reason)"
            failed=1 ;;
        1:)
            echo "  $name: $result; not listed in $DIFFERENCES"
            failed=1 ;;
        *)
            echo "  $name: not comparable: $result"
            failed=1 ;;
    esac
done <"$OUT/classic.list"
[ $failed -eq 0 ] || fail "the pictures of the two SDLs do not match the listed differences"
