#!/usr/bin/env bash
# End to end on a private X server: the real jeerbox, driven with xdotool.
# "Insult me" with its laugh, "Copy" and the clipboard (xclip), the about
# box; a second copy refused while the first runs; the banner opening the
# sponsor through the desktop's URL handler; Escape ending the program; a
# command line warned about; a killed copy leaving no lock behind. The first
# copy runs under strace -f and must write nothing to disk outside the
# session's own work directory (where the stand-in URL handler, the disk
# audio driver and fontconfig's caches write), /dev/null and /dev/tty.
# Usage: e2e_test.sh PROGRAM_DIR CAPTION SPONSOR_URL
set -uo pipefail
dir=$1 caption=$2 sponsor=$3 tools="xclip strace"
source "$(dirname "$0")/../session.sh"
export http_proxy="http://127.0.0.1:$port" HOME=$work/home XDG_CACHE_HOME=$work/home/.cache
mkdir -p "$HOME"
writes=creat,rename,renameat,renameat2,unlink,unlinkat,mkdir,mkdirat,rmdir,link,linkat,symlink,symlinkat,truncate
tracer=(strace -f -qq -o "$work/trace" -e "trace=open,openat,$writes")

start() {
  "${tracer[@]}" "$dir/jeerbox" "$@" >>"$work/jeerbox.log" 2>&1 &
  pid=$!
  pids+=("$pid")
  tracer=()
}
nonzero_bytes() { { tr -d '\000' <"$1"; } 2>/dev/null | wc -c; }  # how many bytes of FILE aren't 0
clipboard() { timeout 5 xclip -o -selection clipboard 2>/dev/null; }

# --- Insult me (with a laugh), Copy, the clipboard. SDL's disk driver
# stands in for a sound card and writes what is played to a file.
SDL_AUDIODRIVER=disk SDL_DISKAUDIOFILE="$work/audio.raw" start
first=$pid
main=$(window_named "$caption_re")
[ -n "$main" ] || { fail "the window '$caption' didn't appear"; finish; }
sleep 0.5
silence=$(nonzero_bytes "$work/audio.raw")
click_at "$main" 238 252 # Insult me
sleep 1
laugh=$(nonzero_bytes "$work/audio.raw")
[ "$silence" -eq 0 ] && [ "$laugh" -gt 0 ] && pass "silent until Insult me, then a laugh" ||
  fail "audio: $silence non-zero bytes before the click, $laugh after"
click_at "$main" 36 252 # Copy
copied=$(clipboard)
[ -n "$copied" ] && [[ "$copied" != Click* ]] && pass "copied: $copied" || fail "clipboard holds '$copied'"
# Another client holds the clipboard: Copy takes it over, and the program goes on.
printf 'held' | xclip -selection clipboard
click_at "$main" 36 252
[ "$(clipboard)" = "$copied" ] && pass "copied over a held clipboard" || fail "clipboard: '$(clipboard)'"
click_at "$main" 318 252 # About...
box=$(window_named Jeerbox)
[ -n "$box" ] && dismiss "$box" && pass "about box shown and gone" || fail "no about box"

second_copy_refused

# --- The banner: connection test through the proxy, then the URL handler.
click_at "$main" 222 302
for _ in $(seq 50); do [ -s "$work/opened" ] && break; sleep 0.1; done
opened=$(cat "$work/opened" 2>/dev/null)
[ "$opened" = "$sponsor" ] && pass "banner opened $sponsor" || fail "opened: '$opened'"
tested_maker && pass "tested the maker's server" || fail "no connection test seen by the proxy"

escape_ends "$main" "$first"
# The first copy's calls that succeeded and write, outside the allowed places.
grep -E "^[0-9]+ +(${writes//,/|})\(|^[0-9]+ +open(at)?\(.*(O_WRONLY|O_RDWR|O_CREAT|O_TRUNC)" "$work/trace" |
  grep -E '\) += [0-9]' | grep -Fv -e "\"$work/" -e "\"$work\"" -e '"/dev/null"' -e '"/dev/tty"' >"$work/writes"
[ "$(wc -l <"$work/trace")" -ge 50 ] || fail "the trace didn't follow the program" # word lists, fonts, libraries
[ -s "$work/writes" ] && fail "writes: $(cat "$work/writes")" || pass "$(wc -l <"$work/trace") traced calls, no writes"

warned_then_window --anything

# --- Killed, it leaves no lock: the next start isn't refused.
{ kill -9 "$pid" && wait "$pid"; } 2>/dev/null
start
main=$(window_named "$caption_re")
[ -n "$main" ] && pass "started again after a kill" || fail "refused after a kill"
[ -n "$main" ] && press "$main" Escape
ended_within "$pid" 10 || fail "last copy didn't end"
finish
