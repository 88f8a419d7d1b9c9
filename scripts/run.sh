#!/usr/bin/env bash
# Starts the program from its build directory; with no display, prints a
# few sentences from the terminal tool instead.
set -euo pipefail
dir=${1:-build/default}

if [ -x "$dir/jeerbox" ] && { [ -n "${DISPLAY:-}" ] || [ -n "${WAYLAND_DISPLAY:-}" ]; }; then
  exec "$dir/jeerbox"
fi
if [ -x "$dir/jeerbox" ]; then
  echo "No display here (DISPLAY is not set), so the window can't open. A few sentences instead:"
else
  echo "The window program isn't built yet. A few sentences instead:"
fi
"$dir/jeer" say --count 5
