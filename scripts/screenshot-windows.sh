#!/usr/bin/env bash
# Takes a picture of jeerbox.exe under Wine, on the Wine session's private X
# server, into docs/screenshot-wine.png: after one "Insult me".
# Usage: scripts/screenshot-windows.sh [BUILD_DIR] [OUTPUT]
set -euo pipefail
cd "$(dirname "$0")/.."
dir=${1:-build/windows}
out=${2:-docs/screenshot-wine.png}
for tool in xdotool import; do
  command -v "$tool" >/dev/null || { echo "screenshot: $tool is missing; run scripts/install-deps.sh" >&2; exit 1; }
done
[ -f "$dir/Jeerbox/jeerbox.exe" ] || { echo "screenshot: $dir/Jeerbox/jeerbox.exe isn't built (make windows)" >&2; exit 1; }
eval "$("$dir/wine-run" --env)"
timeout 60 wine "$dir/Jeerbox/jeerbox.exe" </dev/null >/dev/null 2>&1 &
pid=$!
trap 'kill $pid 2>/dev/null || true; wait $pid 2>/dev/null || true' EXIT

caption=$(sed -n 's/^JEERBOX_PRODUCT_DOMAIN:STRING=//p' "$dir/CMakeCache.txt")
window=$(timeout 20 xdotool search --sync --onlyvisible --name "^${caption//./\\.}\$" | head -n 1)
[ -n "$window" ] || { echo "screenshot: the window didn't appear" >&2; exit 1; }
xdotool windowfocus --sync "$window"
xdotool key Return  # presses "Insult me", the default button
sleep 1
mkdir -p "$(dirname "$out")"
import -window "$window" "$out"
xdotool windowfocus --sync "$window"
xdotool key Escape
echo "screenshot: $out ($(identify -format '%wx%h' "$out"))"
