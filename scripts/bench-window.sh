#!/usr/bin/env bash
# Start-up time and memory of a window program under Xvfb.
#   scripts/bench-window.sh TIMER PROGRAM TITLE [RUNS] [PRESSES] [KEY]
# Start-up: from launch to the window named TITLE mapped, the median over
# RUNS launches (default 20), timed by TIMER (bench/window_startup.cpp) on
# the server's map event. Memory: the resident set after 100 and after
# PRESSES (default 1000) presses of KEY (default Return, the default button)
# in one further launch, and its peak. Prints one line:
#   startup_ms=... rss_100_kb=... rss_last_kb=... peak_kb=...
# PRESSES 0 measures the start-up only.
set -euo pipefail
timer=$1
program=$2
title=$3
runs=${4:-20}
presses=${5:-1000}
key=${6:-Return}

command -v Xvfb >/dev/null && command -v xdotool >/dev/null ||
  { echo "bench-window: needs Xvfb and xdotool (scripts/install-deps.sh)" >&2; exit 1; }
[ -x "$program" ] || { echo "bench-window: no program at $program" >&2; exit 1; }
[ -x "$timer" ] || { echo "bench-window: no start-up timer at $timer" >&2; exit 1; }

work=$(mktemp -d)
xvfb_pid=""
app_pid=""
cleanup() {
  [ -n "$app_pid" ] && kill "$app_pid" 2>/dev/null || true
  # Waited for, so that what runs next has the machine to itself.
  [ -n "$xvfb_pid" ] && { kill "$xvfb_pid" && wait "$xvfb_pid"; } 2>/dev/null || true
  rm -rf "$work"
}
trap cleanup EXIT

# A display of our own: Xvfb names a free one on the descriptor we give it.
# -noreset: by default the server resets whenever its last client leaves,
# and a program launched during the reset fails to connect.
Xvfb -displayfd 3 -screen 0 1024x768x24 -noreset -nolisten tcp 3>"$work/display" 2>"$work/xvfb.log" &
xvfb_pid=$!
for _ in $(seq 100); do [ -s "$work/display" ] && break; sleep 0.05; done
[ -s "$work/display" ] || { echo "bench-window: Xvfb did not start" >&2; exit 1; }
export DISPLAY=":$(cat "$work/display")"
unset QT_QPA_PLATFORM WAYLAND_DISPLAY
export XDG_RUNTIME_DIR="$work/runtime"
mkdir -m 0700 "$XDG_RUNTIME_DIR"

now_ns() { date +%s%N; }

# Waits (at most 20 s) for the window; prints its id. xdotool's own --sync
# waits half a second between looks; this looks in a tight loop.
wait_window() {
  local deadline=$(( $(now_ns) + 20000000000 ))
  while [ "$(now_ns)" -lt $deadline ]; do
    if xdotool search --onlyvisible --name "^${title}\$" 2>/dev/null | head -1 | grep .; then return 0; fi
  done
  echo "bench-window: no window named '$title' within 20 s; the program said:" >&2
  sed 's/^/  /' "$work/out.log" >&2
  return 1
}

launch() {
  "$program" >"$work/out.log" 2>&1 &
  app_pid=$!
}

stop() {
  kill "$app_pid" 2>/dev/null || true
  wait "$app_pid" 2>/dev/null || true
  app_pid=""
}

startup_ms=$("$timer" "$title" "$runs" "$program")
if [ "$presses" = 0 ]; then
  echo "startup_ms=$startup_ms"
  exit 0
fi

rss_kb() { awk -v f="$1" '$1 == f":" {print $2}' "/proc/$app_pid/status"; }

# Presses go to the focused window through XTEST, as a person's would.
press() {
  local left=$1
  while [ "$left" -gt 0 ]; do
    local n=$(( left < 100 ? left : 100 ))
    xdotool key --delay 1 --repeat "$n" "$key"
    left=$(( left - n ))
  done
  sleep 0.5  # let the program take the last presses
}

launch
window=$(wait_window)
xdotool windowfocus --sync "$window" 2>/dev/null || xdotool windowfocus "$window"
press 100
rss_100=$(rss_kb VmRSS)
press $(( presses - 100 ))
rss_last=$(rss_kb VmRSS)
peak=$(rss_kb VmHWM)
stop

echo "startup_ms=$startup_ms rss_100_kb=$rss_100 rss_last_kb=$rss_last peak_kb=$peak"
