#!/usr/bin/env bash
# Runs one fuzz target for a while: first over its checked-in corpus, then
# fuzzing on a scratch copy, so the repository's corpus never changes by
# itself. Fails on a crash, a leak, an input slower than 1 s, or more than
# 256 MB. Usage: fuzz.sh TARGET CORPUS_DIR SECONDS
set -uo pipefail
target=$1 corpus=$2 seconds=${3:-60}
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
mkdir "$scratch/corpus"
cp -r "$corpus"/. "$scratch/corpus"/
cd "$scratch"
# ASan keeps freed memory in a 256 MB quarantine by default, which alone
# would cross the memory limit; a small one still catches use after free.
export ASAN_OPTIONS="quarantine_size_mb=16:${ASAN_OPTIONS:-}"
flags=(-timeout=1 -rss_limit_mb=256 -artifact_prefix="$scratch/")

"$target" "${flags[@]}" -runs=0 corpus >log 2>&1
status=$?
if [ $status -eq 0 ]; then
  "$target" "${flags[@]}" -max_total_time="$seconds" -print_final_stats=1 corpus >log 2>&1
  status=$?
fi
grep -E "stat::number_of_executed_units|ERROR|SUMMARY|Test unit written" log || true
[ $status -eq 0 ] || { echo "$(basename "$target") failed:"; tail -n 40 log; }
exit $status
