#!/usr/bin/env bash
# Formatting and static analysis over the whole tree: clang-format must have
# nothing to change, clang-tidy nothing to say. Needs the compile database
# of a configured build (default: build/default).
set -euo pipefail
cd "$(dirname "$0")/.."
build=${1:-build/default}

echo "== clang-format"
git ls-files -z '*.cpp' '*.h' | xargs -0 clang-format --dry-run -Werror

echo "== clang-tidy"
# Everything in the compile database that is ours; the fuzz targets build
# with clang flags of their own and are checked by their own build.
log=$(mktemp)
trap 'rm -f "$log"' EXIT
run-clang-tidy -p "$build" -quiet -j "$(nproc)" "$PWD/(src|tests|bench)/" 2>&1 |
  grep -v -E '^(clang-tidy|[0-9]+ warnings? (and [0-9]+ errors? )?generated|Suppressed|Use -header-filter|Running|$)' |
  tee "$log" || true
if grep -q -E "(warning|error):" "$log"; then exit 1; fi
echo "lint: clean"
