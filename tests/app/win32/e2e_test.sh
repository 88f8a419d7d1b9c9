#!/usr/bin/env bash
# End to end under Wine, on the build's Wine session and its private X
# server: the real jeerbox.exe, driven with xdotool, read back with xclip and
# a probe that asks Windows about the window. A command line warned about;
# "Insult me" and "Copy"; a second copy refused; the banner with the maker's
# server out of reach (a closed port as the proxy), then in reach, opening
# the sponsor through the desktop's URL handler; Escape, and the window's
# own close, ending it.
# Usage: e2e_test.sh WINE_RUN PROGRAM_DIR PROBE_EXE CAPTION SPONSOR_URL
set -uo pipefail
wine_run=$1 dir=$2 probe=$3 caption=$4 sponsor=$5 tools="xclip"
source "$(dirname "$0")/../session.sh"
frame_left=3 frame_top=25 # the frame Wine draws

start() {  # start PROXY_PORT ARGS...
  local proxy=$1
  shift
  http_proxy="http://127.0.0.1:$proxy" timeout 120 wine "$dir/jeerbox.exe" "$@" </dev/null >>"$work/jeerbox.log" 2>&1 &
  pid=$!
  pids+=("$pid")
}
probe() { timeout 20 wine "$probe" "$caption" 2>/dev/null | tr -d '\r'; }

# --- A command line is warned about, then the window comes up, Copy off.
warned_then_window "$closed" --anything
first=$pid
grep -qx "copy disabled" <<<"$(probe)" && pass "Copy disabled at the start" || fail "at the start: $(probe)"

# --- Insult me (Enter: the default button), then Copy (Tab to it, Enter).
press "$main" Return
state=$(probe)
sentence=$(sed -n 's/^text //p' <<<"$state")
[ -n "$sentence" ] && [[ "$sentence" != Click* ]] && grep -qx "copy enabled" <<<"$state" &&
  pass "a sentence: $sentence" || fail "after Insult me: $state"
press "$main" Tab Tab Tab Return
copied=$(timeout 5 xclip -o -selection clipboard 2>/dev/null)
[ "$copied" = "$sentence" ] && pass "Copy put the sentence on the X clipboard" || fail "clipboard holds '$copied'"

second_copy_refused "$closed"

# --- The banner with the maker's server out of reach: a message, nothing opened.
click_at "$main" 222 302
box=$(window_named Jeerbox)
[ -n "$box" ] && pass "banner: the connection message" || fail "banner: no message"
[ -n "$box" ] && dismiss "$box"
[ ! -e "$work/opened" ] || fail "opened: $(cat "$work/opened")"

escape_ends "$main" "$first"

# --- The banner with the maker's server in reach: the sponsor's page opens.
start "$port"
main=$(window_named "$caption_re")
[ -n "$main" ] && [ "$(windows_named Jeerbox)" -eq 0 ] || fail "start without a command line"
# A fresh window may not take input at once: the click is made again until
# the server has seen the test.
for _ in 1 2 3; do
  click_at "$main" 222 302
  for _ in $(seq 30); do tested_maker && break 2; sleep 0.1; done
done
tested_maker && pass "tested the maker's server" || fail "no connection test seen by the proxy"
for _ in $(seq 50); do [ -s "$work/opened" ] && break; sleep 0.1; done
opened=$(head -n 1 "$work/opened" 2>/dev/null)
# Wine's browser launcher adds the slash of the empty path.
[ "${opened%/}" = "${sponsor%/}" ] && pass "banner opened $sponsor" || fail "opened: '$opened'"

# --- The window's own close (Alt+F4, as the close box) ends it too.
for _ in 1 2 3; do
  press "$main" alt+F4
  ended_within "$pid" 5 && break
done
kill -0 "$pid" 2>/dev/null && fail "still running after Alt+F4" || pass "Alt+F4 ended the program"
finish
