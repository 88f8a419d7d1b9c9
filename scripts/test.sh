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
if [ "$preset" = default ]; then
  # The lint reads the default build's compile database; it runs beside
  # the phases below, which leave a core idle much of the time (tests
  # waiting on Xvfb, Wine and time-outs), and is waited for at the end.
  lint_log=$(mktemp)
  nice scripts/lint.sh build/default src >"$lint_log" 2>&1 &
  lint_pid=$!
fi
phase "$preset: test" run "$preset"
if [ "$preset" = default ]; then
  phase "asan: build" build asan
  phase "asan: test" run asan
  # Windows: cross-built, run under Wine; the default build's jeer packs.
  phase "windows" scripts/test-windows.sh build/default/jeer
  start=$SECONDS
  lint_status=0
  wait "$lint_pid" || lint_status=$?
  cat "$lint_log"
  times+=("lint (what was left of it) $((SECONDS - start)) s")
  [ "$lint_status" -eq 0 ] || exit "$lint_status"
fi
printf '== took: %s\n' "${times[@]}"
