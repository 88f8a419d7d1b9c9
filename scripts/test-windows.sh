#!/usr/bin/env bash
# The Windows phase of make test: the mingw-w64 cross build (build/windows),
# its Wine prefix and session, and every Windows test under Wine. Prints
# what each part took.
# Usage: scripts/test-windows.sh [HOST_JEER]  (a jeer for this machine to pack
# the word lists with; without it the build makes one of its own)
set -euo pipefail
cd "$(dirname "$0")/.."
jobs=$(nproc)
args=()
[ -n "${1:-}" ] && args+=("-DJEERBOX_HOST_JEER=$(realpath "$1")")

t0=$(date +%s)
echo "== windows: build"
cmake --preset windows "${args[@]}" >/dev/null
cmake --build --preset windows -j "$jobs"
cmake --build --preset windows --target windows_zip >/dev/null
t1=$(date +%s)
echo "== windows: Wine prefix and session"
trap 'build/windows/wine-run --stop' EXIT
build/windows/wine-run --env >/dev/null
t2=$(date +%s)
echo "== windows: test"
ctest --preset windows -j "$jobs"
t3=$(date +%s)
echo "== windows: build $((t1 - t0)) s, Wine $((t2 - t1)) s, tests $((t3 - t2)) s, $((t3 - t0)) s in all"
