#!/bin/sh
# Keeps the README's guide true: its code block must be examples/guide/
# main.cpp word for word, and the program, run headless with queued input
# in a folder holding one file, must print the name chosen in its dialog.
#
# usage: check_guide.sh README MAIN_CPP SCRIPTED_RUN THEME FONT
set -eu
README=$1 MAIN=$2 RUN=$3 THEME=$4 FONT=$5
WORK=$(mktemp -d)
trap 'rm -rf "$WORK"' EXIT

# The block that follows the line naming the file in the README.
awk '/^<!-- examples\/guide\/main.cpp -->$/ { found = 1; next }
     found && /^```/ { if (inside) exit; inside = 1; next }
     inside { print }' "$README" >"$WORK/block.cpp"
diff -u "$MAIN" "$WORK/block.cpp" || {
    echo "the README's guide differs from $MAIN (- file, + README)" >&2
    exit 1
}

mkdir "$WORK/folder"
echo "a saved game" >"$WORK/folder/level1.sav"
(cd "$WORK/folder" && "$RUN" "$THEME" "$FONT") >"$WORK/out"
echo "chosen: level1.sav" >"$WORK/expected"
diff -u "$WORK/expected" "$WORK/out" || {
    echo "the guide's program printed something else (- expected, + printed)" >&2
    exit 1
}
echo "the README's guide matches $MAIN and its program chose level1.sav"
