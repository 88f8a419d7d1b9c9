#!/usr/bin/env bash
# Builds and runs every test. The plain debug build runs everything once:
# the unit suites, the window on Xvfb, the install and package checks. The
# sanitizer build (ASan + UBSan) runs the unit suites again and replays the
# fuzz corpora. Then the Windows build under Wine, then the lint (format
# everywhere, clang-tidy over src/; `make lint` tidies the whole tree).
# Prints what each phase took. Usage: scripts/test.sh [PRESET]
set -euo pipefail
cd "$(dirname "$0")/.."
jobs=$(nproc)
times=()

phase() {
  local name=$1 start=$SECONDS
  shift
  echo "== $name"
  "$@"
  times+=("$name $((SECONDS - start)) s")
}
build() { cmake --preset "$1" >/dev/null && cmake --build --preset "$1" -j "$jobs"; }
run() { ctest --preset "$1" -j "$jobs"; }

export ASAN_OPTIONS=${ASAN_OPTIONS:-detect_leaks=1:abort_on_error=0}
export UBSAN_OPTIONS=${UBSAN_OPTIONS:-print_stacktrace=1:halt_on_error=1}

preset=${1:-default}
phase "$preset: build" build "$preset"
phase "$preset: test" run "$preset"
if [ "$preset" = default ]; then
  phase "asan: build" build asan
  phase "asan: test" run asan
  # Windows: cross-built, run under Wine; the default build's jeer packs.
  phase "windows" scripts/test-windows.sh build/default/jeer
  phase "lint" scripts/lint.sh build/default src
fi
printf '== took: %s\n' "${times[@]}"
