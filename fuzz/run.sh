#!/bin/sh
# Runs each fuzz target for SECONDS on a scratch copy of its committed
# corpus, so that new inputs never land in the repository. Logs and any
# crashing input go to BUILD_DIR/fuzz-runs/<target>/. Exits non-zero on the
# first target with a finding (crash, leak, timeout, sanitizer report).
#   fuzz/run.sh BUILD_DIR SECONDS [TARGET...]
set -e
if [ $# -lt 2 ]; then
    echo "usage: $0 BUILD_DIR SECONDS [TARGET...]" >&2
    exit 2
fi
root=$(cd "$(dirname "$0")/.." && pwd)
build=$(cd "$1" && pwd)
seconds=$2
shift 2
[ $# -gt 0 ] || set -- fuzz_sprite_load fuzz_theme_load fuzz_events

for target in "$@"; do
    out=$build/fuzz-runs/$target
    rm -rf "$out"
    mkdir -p "$out/corpus" "$out/artifacts"
    # The loaders read by name: their scratch files go to memory when it can.
    scratch=$(mktemp -d "${SCRATCH_PARENT:-/dev/shm}/kvt-fuzz.XXXXXX" 2>/dev/null || mktemp -d)
    cp "$root/fuzz/corpus/$target/"* "$out/corpus/"
    echo "== $target: $seconds s (log in $out/log.txt)"
    if ! TMPDIR=$scratch "$build/fuzz/$target" -max_total_time="$seconds" -timeout=10 \
        -print_final_stats=1 -artifact_prefix="$out/artifacts/" "$out/corpus" \
        >"$out/log.txt" 2>&1; then
        rm -rf "$scratch"
        tail -n 40 "$out/log.txt"
        echo "== $target found a fault; the input is in $out/artifacts/" >&2
        exit 1
    fi
    rm -rf "$scratch"
    grep -E '^(#[0-9]+.*DONE|stat::number_of_executed_units|stat::average_exec_per_sec)' \
        "$out/log.txt" || true
done
