#!/usr/bin/env bash
# Formatting and static analysis: clang-format must have nothing to change
# anywhere, the desktop entry, metainfo and manual pages must validate, and
# clang-tidy must have nothing to say about the folders given (default: the
# whole tree: src, tests, bench). Needs the compile database of a configured
# build. Usage: scripts/lint.sh [BUILD_DIR] [FOLDER...]
set -euo pipefail
cd "$(dirname "$0")/.."
build=${1:-build/default}
shift || true
if [ $# -gt 0 ]; then folders=("$@"); else folders=(src tests bench); fi

echo "== clang-format"
git ls-files -z '*.cpp' '*.h' | xargs -0 clang-format --dry-run -Werror

echo "== desktop entry, metainfo, manual pages"
desktop-file-validate data/desktop/jeerbox.desktop
appstreamcli validate --no-net data/desktop/org.example.Jeerbox.metainfo.xml
for page in "$build"/man/*.1; do
  warnings=$(groff -man -ww -z "$page" 2>&1)
  [ -z "$warnings" ] || { echo "$page: $warnings"; exit 1; }
done

echo "== clang-tidy: ${folders[*]}"
# What is ours in the compile database; the fuzz targets build with clang
# flags of their own and are checked by their own build.
log=$(mktemp)
trap 'rm -f "$log"' EXIT
pattern="$PWD/($(IFS='|'; echo "${folders[*]}"))/"
run-clang-tidy -p "$build" -quiet -j "$(nproc)" "$pattern" 2>&1 |
  grep -v -E '^(clang-tidy|[0-9]+ warnings? (and [0-9]+ errors? )?generated|Suppressed|Use -header-filter|Running|$)' |
  tee "$log" || true
if grep -q -E "(warning|error):" "$log"; then exit 1; fi
echo "lint: clean"
