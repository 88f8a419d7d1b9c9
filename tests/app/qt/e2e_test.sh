#!/usr/bin/env bash
# End to end on a private X server: the real jeerbox, driven with xdotool.
# "Insult me" with its laugh, "Copy" and the clipboard (xclip); a second
# copy refused while the first runs; the banner opening the sponsor through
# the desktop's URL handler; a command line warned about; Escape ending the
# program; a killed copy leaving no lock behind.
# Usage: e2e_test.sh PROGRAM_DIR CAPTION SPONSOR_URL
set -uo pipefail
dir=$1 caption=$2 sponsor=$3

if [ -z "${JEERBOX_E2E_IN_XVFB:-}" ]; then
  if ! command -v xvfb-run >/dev/null; then
    echo "SKIPPED: xvfb-run is missing (scripts/install-deps.sh installs xvfb xauth xdotool xclip)"
    exit 77
  fi
  for tool in xauth xdotool xclip python3; do
    command -v "$tool" >/dev/null || { echo "e2e: $tool is missing; run scripts/install-deps.sh" >&2; exit 1; }
  done
  export JEERBOX_E2E_IN_XVFB=1
  exec xvfb-run -a -s "-screen 0 1024x768x24 -nolisten tcp" "$0" "$@"
fi

work=$(mktemp -d "$dir/e2e.XXXXXX")
chmod 700 "$work"
export XDG_RUNTIME_DIR=$work
unset QT_QPA_PLATFORM no_proxy NO_PROXY
pids=()
cleanup() {
  for p in "${pids[@]}"; do { kill -9 "$p" && wait "$p"; } 2>/dev/null; done
  rm -rf "$work"
}
trap cleanup EXIT

failures=0
fail() { echo "FAIL: $*"; failures=$((failures + 1)); }
pass() { echo "ok: $*"; }

source "$(dirname "$0")/session_stand_ins.sh"

start() {  # start ARGS...: starts jeerbox, sets $pid
  "$dir/jeerbox" "$@" >>"$work/jeerbox.log" 2>&1 &
  pid=$!
  pids+=("$pid")
}
window_named() {  # window_named NAME: the visible window's id, waiting up to 15 s
  timeout 15 xdotool search --sync --onlyvisible --name "^$1\$" 2>/dev/null | head -n 1
}
ended_within() {  # ended_within PID SECONDS
  for _ in $(seq $(($2 * 10))); do kill -0 "$1" 2>/dev/null || return 0; sleep 0.1; done
  return 1
}
click_at() {  # click_at WINDOW X Y (window coordinates)
  xdotool mousemove --window "$1" "$2" "$3" click 1
  sleep 0.3
}
press() {  # press WINDOW KEY: the key, typed into the focused window
  xdotool windowfocus --sync "$1" 2>/dev/null
  xdotool key "$2"
  sleep 0.3
}
caption_re=$(printf '%s' "$caption" | sed 's/[.]/\\./g')

nonzero_bytes() {  # nonzero_bytes FILE: how many bytes of FILE aren't 0
  python3 -c 'import sys; d=open(sys.argv[1],"rb").read(); print(len(d)-d.count(0))' "$1" 2>/dev/null || echo 0
}

# --- First copy: Insult me (with a laugh), Copy, the clipboard. SDL's disk
# driver stands in for a sound card and writes what is played to a file.
export SDL_AUDIODRIVER=disk SDL_DISKAUDIOFILE="$work/audio.raw"
start
first=$pid
unset SDL_AUDIODRIVER SDL_DISKAUDIOFILE
main=$(window_named "$caption_re")
[ -n "$main" ] || { echo "FAIL: the window '$caption' didn't appear"; cat "$work/jeerbox.log"; exit 1; }
pass "window up"
sleep 0.5
silence=$(nonzero_bytes "$work/audio.raw")
click_at "$main" 238 252   # Insult me
sleep 1
if [ -s "$work/audio.raw" ] && [ "$silence" -eq 0 ] && [ "$(nonzero_bytes "$work/audio.raw")" -gt 0 ]; then
  pass "silent until Insult me, then a laugh"
else
  fail "audio: $silence non-zero bytes before the click, $(nonzero_bytes "$work/audio.raw") after"
fi
click_at "$main" 36 252    # Copy
copied=$(timeout 5 xclip -o -selection clipboard 2>/dev/null)
if [ -n "$copied" ] && [[ "$copied" != Click* ]]; then pass "copied a sentence: $copied"; else fail "clipboard holds '$copied'"; fi
# Another client holds the clipboard (xclip serves it in the background):
# Copy takes it over, and the program goes on.
printf 'held by another client' | xclip -selection clipboard
click_at "$main" 238 252   # a new sentence replaces the old one
click_at "$main" 36 252
again=$(timeout 5 xclip -o -selection clipboard 2>/dev/null)
if [ -n "$again" ] && [ "$again" != "held by another client" ] && kill -0 "$first" 2>/dev/null; then
  pass "copied again over a clipboard another client held"
else
  fail "clipboard after a held one: '$again'"
fi

# --- A second copy is refused with a message and leaves the first alone.
start
second=$pid
box=$(window_named "Jeerbox")
if [ -n "$box" ]; then pass "second copy shows the message box"; else fail "no message box from the second copy"; fi
[ "$(xdotool search --onlyvisible --name "^$caption_re\$" | wc -l)" -eq 1 ] && pass "still one main window" || fail "a second main window"
[ -n "$box" ] && press "$box" Return
if ended_within "$second" 10; then pass "second copy ended after OK"; else fail "second copy still runs"; fi
kill -0 "$first" 2>/dev/null && pass "first copy untouched" || fail "first copy gone"

# --- The banner: connection test through the proxy, then the URL handler.
click_at "$main" 222 302
for _ in $(seq 50); do [ -s "$work/opened" ] && break; sleep 0.1; done
if [ "$(cat "$work/opened" 2>/dev/null)" = "$sponsor" ]; then pass "banner opened $sponsor"; else fail "opened: '$(cat "$work/opened" 2>/dev/null)'"; fi
grep -q "GET http://[^ ]*/connectiontest.html" "$work/proxy.log" && pass "tested the maker's server" || fail "no connection test seen by the proxy"

# --- Escape ends the program.
press "$main" Escape
if ended_within "$first" 10; then pass "Escape ended the program"; else fail "still running after Escape"; fi
wait "$first"; rc=$?
[ "$rc" -eq 0 ] && pass "exit status 0" || fail "exit status $rc"

# --- A command line is warned about, then the window comes up.
start --anything
warned=$pid
box=$(window_named "Jeerbox")
[ -n "$box" ] && pass "command line warned about" || fail "no command-line warning"
[ -n "$box" ] && press "$box" Return
main=$(window_named "$caption_re")
[ -n "$main" ] && pass "window up after the warning" || fail "no window after the warning"

# --- Killed, it leaves no lock: the next start isn't refused.
{ kill -9 "$warned" && wait "$warned"; } 2>/dev/null
start
main=$(window_named "$caption_re")
[ -n "$main" ] && pass "started again after a kill" || fail "refused after a kill"
[ -n "$main" ] && press "$main" Escape
ended_within "$pid" 10 || fail "last copy didn't end"

if [ "$failures" -ne 0 ]; then
  echo "--- jeerbox output"; cat "$work/jeerbox.log"
  exit 1
fi
echo "all end-to-end checks passed"
