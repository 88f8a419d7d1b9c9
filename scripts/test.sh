#!/usr/bin/env bash
# Builds and runs every test: the plain debug build first, then the same
# suite under AddressSanitizer and UndefinedBehaviorSanitizer, then each
# fuzz target over its corpus for a few seconds, then the Windows build
# under Wine (scripts/test-windows.sh), then the lint.
set -euo pipefail
cd "$(dirname "$0")/.."
jobs=$(nproc)

run_suite() {
  local preset=$1
  echo "== $preset: build"
  cmake --preset "$preset" >/dev/null
  cmake --build --preset "$preset" -j "$jobs"
  echo "== $preset: test"
  ctest --preset "$preset" -j "$jobs"
}

export ASAN_OPTIONS=${ASAN_OPTIONS:-detect_leaks=1:abort_on_error=0}
export UBSAN_OPTIONS=${UBSAN_OPTIONS:-print_stacktrace=1:halt_on_error=1}

presets=("${1:-default}")
[ "${1:-default}" = default ] && presets+=(asan fuzz)
for p in "${presets[@]}"; do run_suite "$p"; done
if [ "${1:-default}" = default ]; then
  # Windows: cross-built, run under Wine; the default build's jeer packs.
  scripts/test-windows.sh build/default/jeer
  echo "== lint"
  scripts/lint.sh build/default
fi
