#!/usr/bin/env bash
# Takes a picture of the window under a private X server (Xvfb) into
# docs/screenshot.png: after one "Insult me" when the word lists are in
# place beside the program, else as it starts.
# Usage: scripts/screenshot.sh [BUILD_DIR] [OUTPUT]
set -euo pipefail
cd "$(dirname "$0")/.."
dir=${1:-build/default}
out=${2:-docs/screenshot.png}

if [ -z "${JEERBOX_IN_XVFB:-}" ]; then
  for tool in xvfb-run xdotool import; do
    command -v "$tool" >/dev/null || { echo "screenshot: $tool is missing; run scripts/install-deps.sh" >&2; exit 1; }
  done
  [ -x "$dir/jeerbox" ] || { echo "screenshot: $dir/jeerbox isn't built" >&2; exit 1; }
  export JEERBOX_IN_XVFB=1
  exec xvfb-run -a -s "-screen 0 1024x768x24 -nolisten tcp" "$0" "$@"
fi

runtime=$(mktemp -d)
export XDG_RUNTIME_DIR=$runtime
"$dir/jeerbox" &
pid=$!
trap 'kill $pid 2>/dev/null || true; wait $pid 2>/dev/null || true; rm -rf "$runtime"' EXIT

window=$(timeout 20 xdotool search --sync --onlyvisible --class jeerbox | head -n 1)
[ -n "$window" ] || { echo "screenshot: the window didn't appear" >&2; exit 1; }
xdotool windowactivate --sync "$window" 2>/dev/null || xdotool windowfocus --sync "$window"
if [ -d "$dir/System" ]; then
  xdotool key --window "$window" Return  # presses "Insult me", the default button
fi
sleep 1
mkdir -p "$(dirname "$out")"
import -window "$window" "$out"
echo "screenshot: $out ($(identify -format '%wx%h' "$out"))"
