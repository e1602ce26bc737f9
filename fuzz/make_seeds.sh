#!/bin/sh
# Rewrites fuzz/corpus/ from scratch: the seeds that kvt_fuzz_make_seeds
# writes, the repository's default theme, and sprite files that
# `kvt-sprite pack` makes from the program's small pictures.
#   fuzz/make_seeds.sh FUZZ_BUILD_DIR KVT_SPRITE_PROGRAM
set -e
if [ $# -ne 2 ]; then
    echo "usage: $0 FUZZ_BUILD_DIR KVT_SPRITE_PROGRAM" >&2
    exit 2
fi
root=$(cd "$(dirname "$0")/.." && pwd)
corpus=$root/fuzz/corpus
pictures=$(mktemp -d)
trap 'rm -rf "$pictures"' EXIT

rm -rf "$corpus"
mkdir -p "$corpus/fuzz_sprite_load" "$corpus/fuzz_theme_load" "$corpus/fuzz_events"
SDL_VIDEODRIVER=dummy "$1/fuzz/kvt_fuzz_make_seeds" "$corpus" "$pictures"
cp "$root/data/default.theme" "$corpus/fuzz_theme_load/default.theme"

sprites=$corpus/fuzz_sprite_load
"$2" pack "$sprites/pack-small.spr" "$pictures/small.bmp@1,1"
"$2" pack "$sprites/pack-three.spr" "$pictures/diamond.bmp@3,3,7" "$pictures/bar.bmp@-4,0" \
    "$pictures/small.bmp@0,-2,65535"
