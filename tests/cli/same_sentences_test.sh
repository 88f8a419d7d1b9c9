#!/usr/bin/env bash
# jeer.exe under Wine prints, byte for byte, what the build machine's jeer
# prints from the same seed and word lists: the same PCG32, the same reading,
# and no line ends translated on the way out. jeer.exe finds System\ beside
# itself; the host's jeer is told where.
# Usage: same_sentences_test.sh WINE_RUN JEER_EXE HOST_JEER PROGRAM_DIR
set -uo pipefail
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
status=0
for seed in 1 18446744073709551615; do
  "$1" "$2" say --seed "$seed" --count 1000 >"$work/windows" || status=1
  "$3" say --seed "$seed" --count 1000 --root "$4" >"$work/host" || status=1
  [ "$(wc -l <"$work/host")" -eq 1000 ] && cmp "$work/windows" "$work/host" || { echo "FAIL: seed $seed"; status=1; }
done
exit $status
