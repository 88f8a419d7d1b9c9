#!/usr/bin/env bash
# Runs one fuzz target for a while: first over its checked-in corpus, then
# fuzzing on a scratch copy, so the repository's corpus never changes by
# itself. Fails on a crash, a leak, an input slower than the bound of one
# sentence allows (250 ms of CPU here: 50 ms in a release build, with room
# for the sanitizers; libFuzzer's own limit of 1 s stays as the guard
# against a hang), or more than 256 MB. An input that fails is kept in
# fuzz/failures/TARGET/ beside the corpus, with the command that replays it;
# once its fault is fixed it moves into the corpus.
# Usage: fuzz.sh TARGET CORPUS_DIR SECONDS
set -uo pipefail
target=$1 corpus=$2 seconds=${3:-60}
name=$(basename "$corpus")
failures="$(cd "$(dirname "$corpus")/.." && pwd)/failures/$name"
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
mkdir "$scratch/corpus"
cp -r "$corpus"/. "$scratch/corpus"/
cd "$scratch"
# ASan keeps freed memory in a 256 MB quarantine by default, which alone
# would cross the memory limit; a small one still catches use after free.
export ASAN_OPTIONS="quarantine_size_mb=16:${ASAN_OPTIONS:-}"
export JEERBOX_FUZZ_SLOW_MS=${JEERBOX_FUZZ_SLOW_MS:-250}
flags=(-timeout=1 -rss_limit_mb=256 -artifact_prefix="$scratch/failed-")

"$target" "${flags[@]}" -runs=0 corpus >log 2>&1
status=$?
if [ $status -eq 0 ]; then
  "$target" "${flags[@]}" -max_total_time="$seconds" -print_final_stats=1 corpus >log 2>&1
  status=$?
fi
grep -E "stat::number_of_executed_units|ERROR|SUMMARY|slow input|Test unit written" log || true
if [ $status -ne 0 ]; then
  echo "$(basename "$target") failed:"
  tail -n 40 log
  for input in "$scratch"/failed-*; do
    [ -e "$input" ] || continue
    mkdir -p "$failures"
    kept="$failures/$(basename "$input" | sed 's/^failed-//')"
    cp "$input" "$kept"
    replay="JEERBOX_FUZZ_SLOW_MS=$JEERBOX_FUZZ_SLOW_MS $target ${flags[*]:0:2} $kept"
    echo "$replay" >"$kept.replay"
    echo "kept: $kept"
    echo "replay: $replay"
  done
fi
exit $status
