#!/usr/bin/env bash
# jeer.exe under Wine prints, byte for byte, what jeer built for the build
# machine prints from the same seed and word lists: the same PCG32, the same
# reading, and no line ends translated on the way out.
# Usage: same_sentences_test.sh WINE_RUN JEER_EXE HOST_JEER PROGRAM_DIR
set -uo pipefail
wine_run=$1 jeer_exe=$2 host_jeer=$3 dir=$4
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
status=0
for seed in 1 18446744073709551615; do
  # jeer.exe finds System\ beside itself; the host's jeer is told where.
  "$wine_run" "$jeer_exe" say --seed "$seed" --count 1000 >"$work/windows" || status=1
  "$host_jeer" say --seed "$seed" --count 1000 --root "$dir" >"$work/host" || status=1
  if [ "$(wc -l <"$work/host")" -eq 1000 ] && cmp "$work/windows" "$work/host"; then
    echo "ok: seed $seed, 1000 sentences, $(wc -c <"$work/host") bytes alike"
  else
    echo "FAIL: seed $seed differs"
    status=1
  fi
done
exit $status
