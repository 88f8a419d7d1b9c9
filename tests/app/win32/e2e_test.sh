#!/usr/bin/env bash
# End to end under Wine, on the build's Wine session and its private X
# server: the real jeerbox.exe, driven with xdotool, read back with xclip and
# a probe that asks Windows about the window. A command line warned about;
# the window's size; "Insult me" and "Copy"; a second copy refused; the
# banner with the maker's server out of reach (a closed local port as the
# proxy), then in reach (a local server), opening the sponsor through the
# desktop's URL handler; Escape, and the window's own close, ending it.
# Usage: e2e_test.sh WINE_RUN PROGRAM_DIR PROBE_EXE CAPTION SPONSOR_URL
set -uo pipefail
wine_run=$1 dir=$2 probe=$3 caption=$4 sponsor=$5
for tool in xdotool xclip python3; do
  command -v "$tool" >/dev/null || { echo "e2e: $tool is missing; run scripts/install-deps.sh" >&2; exit 1; }
done
eval "$("$wine_run" --env)" || exit 1

work=$(mktemp -d "$dir/../e2e.XXXXXX")
pids=()
cleanup() {
  for p in "${pids[@]}"; do { kill "$p" && wait "$p"; } 2>/dev/null; done
  rm -rf "$work"
}
trap cleanup EXIT
failures=0
fail() { echo "FAIL: $*"; failures=$((failures + 1)); }
pass() { echo "ok: $*"; }

# The desktop's URL handler, as Wine's browser launcher finds it in PATH.
mkdir -p "$work/bin"
printf '#!/bin/sh\nprintf "%%s\\n" "$*" >> "%s/opened"\n' "$work" >"$work/bin/xdg-open"
chmod +x "$work/bin/xdg-open"
export PATH="$work/bin:$PATH"
read -r live closed < <(python3 -c '
import socket
a, b = socket.socket(), socket.socket()
a.bind(("127.0.0.1", 0)); b.bind(("127.0.0.1", 0))
print(a.getsockname()[1], b.getsockname()[1])')
python3 -m http.server --bind 127.0.0.1 "$live" --directory "$work" >"$work/proxy.log" 2>&1 &
pids+=($!)

start() {  # start PROXY_PORT ARGS...: starts jeerbox.exe, sets $pid
  local port=$1
  shift
  http_proxy="http://127.0.0.1:$port" timeout 120 wine "$dir/jeerbox.exe" "$@" </dev/null >>"$work/jeerbox.log" 2>&1 &
  pid=$!
  pids+=("$pid")
}
window_named() {  # window_named NAME: the visible window's id, waiting up to 20 s
  timeout 20 xdotool search --sync --onlyvisible --name "^$1\$" 2>/dev/null | head -n 1
}
windows_named() { xdotool search --onlyvisible --name "^$1\$" 2>/dev/null | wc -l; }
ended_within() {  # ended_within PID SECONDS
  for _ in $(seq $(($2 * 10))); do kill -0 "$1" 2>/dev/null || return 0; sleep 0.1; done
  return 1
}
press() {  # press WINDOW KEYS...: keys typed into the window
  xdotool windowfocus --sync "$1" 2>/dev/null
  shift
  xdotool key "$@"
  sleep 0.4
}
# A fresh box may take a few seconds to act on the key; pressed again too
# soon, the key would reach the main window once the box has gone.
dismiss() {  # dismiss BOX: Return until the box goes
  for _ in $(seq 4); do
    xdotool windowfocus --sync "$1" 2>/dev/null || return 0
    xdotool key Return
    for _ in $(seq 50); do
      xdotool search --onlyvisible --name '^Jeerbox$' 2>/dev/null | grep -qx "$1" || return 0
      sleep 0.1
    done
  done
  return 1
}
probe() { timeout 20 wine "$probe" "$caption" 2>/dev/null | tr -d '\r'; }
# Window coordinates include the frame Wine draws: its left and top edges.
frame_left=3 frame_top=25
# The pointer moves off first: Wine places a click where the pointer last
# moved, and a new window may lie just where the last one was.
click_client() {  # click_client WINDOW X Y (client pixels)
  xdotool mousemove 0 0 sleep 0.1 mousemove --window "$1" $(($2 + frame_left)) $(($3 + frame_top)) sleep 0.1 click 1
  sleep 0.4
}
caption_re=$(printf '%s' "$caption" | sed 's/[.]/\\./g')

# --- A command line is warned about, then the window comes up.
start "$closed" --anything
first=$pid
box=$(window_named Jeerbox)
[ -n "$box" ] && pass "command line warned about" || fail "no command-line warning"
[ -n "$box" ] && { dismiss "$box" || fail "the warning won't go"; }
main=$(window_named "$caption_re")
[ -n "$main" ] || { echo "FAIL: the window '$caption' didn't appear"; cat "$work/jeerbox.log"; exit 1; }
pass "window up"
state=$(probe)
grep -qx "client 444x347" <<<"$state" && pass "client area 444 x 347" || fail "window: $state"
grep -qx "copy disabled" <<<"$state" && pass "Copy disabled at the start" || fail "at the start: $state"

# --- Insult me (Enter: the default button), then Copy (Tab to it, Enter).
press "$main" Return
state=$(probe)
sentence=$(sed -n 's/^text //p' <<<"$state")
if [ -n "$sentence" ] && [[ "$sentence" != Click* ]] && grep -qx "copy enabled" <<<"$state"; then
  pass "a sentence: $sentence"
else
  fail "after Insult me: $state"
fi
press "$main" Tab Tab Tab Return
copied=$(timeout 5 xclip -o -selection clipboard 2>/dev/null)
[ "$copied" = "$sentence" ] && pass "Copy put the sentence on the X clipboard" || fail "clipboard holds '$copied'"

# --- A second copy is refused with a message and leaves the first alone.
start "$closed"
second=$pid
box=$(window_named Jeerbox)
[ -n "$box" ] && pass "second copy shows the message box" || fail "no message box from the second copy"
[ "$(windows_named "$caption_re")" -eq 1 ] && pass "still one main window" || fail "a second main window"
[ -n "$box" ] && dismiss "$box"
ended_within "$second" 10 && pass "second copy ended after OK" || fail "second copy still runs"
kill -0 "$first" 2>/dev/null && pass "first copy untouched" || fail "first copy gone"

# --- The banner with the maker's server out of reach: a message, nothing opened.
click_client "$main" 222 302
box=$(window_named Jeerbox)
[ -n "$box" ] && pass "banner: the connection message" || fail "banner: no message"
[ -n "$box" ] && dismiss "$box"
[ ! -e "$work/opened" ] && pass "banner opened nothing" || fail "opened: $(cat "$work/opened")"

# --- Escape ends the program.
press "$main" Escape
if ended_within "$first" 10; then pass "Escape ended the program"; else fail "still running after Escape"; fi
wait "$first"
rc=$?
[ "$rc" -eq 0 ] && pass "exit status 0" || fail "exit status $rc"

# --- The banner with the maker's server in reach: the sponsor's page opens.
start "$live"
main=$(window_named "$caption_re")
[ -n "$main" ] && [ "$(windows_named Jeerbox)" -eq 0 ] && pass "no warning without a command line" ||
  fail "start without a command line"
# A fresh window may not take input at once: the click is made again until
# the server has seen the test.
for _ in 1 2 3; do
  click_client "$main" 222 302
  for _ in $(seq 30); do grep -q "GET http://[^ ]*/connectiontest.html" "$work/proxy.log" && break 2; sleep 0.1; done
done
grep -q "GET http://[^ ]*/connectiontest.html" "$work/proxy.log" && pass "tested the maker's server" ||
  fail "no connection test seen by the proxy"
for _ in $(seq 50); do [ -s "$work/opened" ] && break; sleep 0.1; done
# Wine's browser launcher adds the slash of the empty path.
opened=$(head -n 1 "$work/opened" 2>/dev/null)
[ "${opened%/}" = "${sponsor%/}" ] && pass "banner opened $sponsor" || fail "opened: '$opened'"

# --- The window's own close (Alt+F4, as the close box) ends it too.
for _ in 1 2 3; do
  press "$main" alt+F4
  ended_within "$pid" 5 && break
done
kill -0 "$pid" 2>/dev/null && fail "still running after Alt+F4" || pass "Alt+F4 ended the program"

if [ "$failures" -ne 0 ]; then
  echo "--- jeerbox output"
  cat "$work/jeerbox.log"
  exit 1
fi
echo "all end-to-end checks passed"
