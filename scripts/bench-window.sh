#!/usr/bin/env bash
# Start-up time and memory of a window program under Xvfb.
#   scripts/bench-window.sh PROGRAM TITLE [RUNS] [PRESSES] [KEY]
# Start-up: from launch to the window named TITLE mapped and visible, the
# median over RUNS launches (default 20). Memory: the resident set after 100
# and after PRESSES (default 1000) presses of KEY (default Return, the
# default button) in one further launch, and its peak. Prints one line:
#   startup_ms=... rss_100_kb=... rss_last_kb=... peak_kb=...
# xdotool's own --sync waits half a second between looks; the window is
# looked for here in a tight loop instead, so a look costs a few ms.
set -euo pipefail
program=$1
title=$2
runs=${3:-20}
presses=${4:-1000}
key=${5:-Return}

command -v Xvfb >/dev/null && command -v xdotool >/dev/null ||
  { echo "bench-window: needs Xvfb and xdotool (scripts/install-deps.sh)" >&2; exit 1; }
[ -x "$program" ] || { echo "bench-window: no program at $program" >&2; exit 1; }

work=$(mktemp -d)
xvfb_pid=""
app_pid=""
cleanup() {
  [ -n "$app_pid" ] && kill "$app_pid" 2>/dev/null || true
  [ -n "$xvfb_pid" ] && kill "$xvfb_pid" 2>/dev/null || true
  rm -rf "$work"
}
trap cleanup EXIT

# A display of our own: Xvfb names a free one on the descriptor we give it.
Xvfb -displayfd 3 -screen 0 1024x768x24 -nolisten tcp 3>"$work/display" 2>"$work/xvfb.log" &
xvfb_pid=$!
for _ in $(seq 100); do [ -s "$work/display" ] && break; sleep 0.05; done
[ -s "$work/display" ] || { echo "bench-window: Xvfb did not start" >&2; exit 1; }
export DISPLAY=":$(cat "$work/display")"
unset QT_QPA_PLATFORM WAYLAND_DISPLAY
export XDG_RUNTIME_DIR="$work/runtime"
mkdir -m 0700 "$XDG_RUNTIME_DIR"

now_ns() { date +%s%N; }

# Waits (at most 20 s) for the window; prints its id.
wait_window() {
  local deadline=$(( $(now_ns) + 20000000000 ))
  while [ "$(now_ns)" -lt $deadline ]; do
    if xdotool search --onlyvisible --name "^${title}\$" 2>/dev/null | head -1 | grep .; then return 0; fi
  done
  echo "bench-window: no window named '$title' within 20 s" >&2
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

# One launch to warm the page cache, then the measured ones.
launch; wait_window >/dev/null; stop
: >"$work/startup"
for _ in $(seq "$runs"); do
  start=$(now_ns)
  launch
  wait_window >/dev/null
  echo $(( ($(now_ns) - start) / 1000 )) >>"$work/startup"
  stop
done
startup_us=$(sort -n "$work/startup" | awk '{v[NR]=$1} END {print v[int((NR+1)/2)]}')

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

awk -v us="$startup_us" -v a="$rss_100" -v b="$rss_last" -v p="$peak" \
  'BEGIN { printf "startup_ms=%.1f rss_100_kb=%d rss_last_kb=%d peak_kb=%d\n", us / 1000, a, b, p }'
