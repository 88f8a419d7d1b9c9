#!/usr/bin/env bash
# The program writes nothing to disk: a whole session of the real jeerbox
# on a private X server (start, ten sentences, copy, about box, a banner
# click answered by a local server, close), traced with strace -f, fails
# if any file is created, opened for writing, renamed, linked or removed.
# Allowed, as the session's rather than the program's: the test's own work
# directory (the stand-in URL handler writes there), /dev/null and /dev/tty,
# and $XDG_CACHE_HOME, where fontconfig and Mesa may keep caches.
# Usage: writes_nothing_test.sh PROGRAM_DIR CAPTION
set -uo pipefail
dir=$1 caption=$2 tools=strace
source "$(dirname "$0")/../session.sh"
export http_proxy="http://127.0.0.1:$port" HOME=$work/home XDG_CACHE_HOME=$work/home/.cache
mkdir -p "$HOME"
export SDL_AUDIODRIVER=dummy # a mixer that plays to nowhere: audio is on, nothing is written

strace -f -qq -o "$work/trace" \
  -e trace=open,openat,creat,rename,renameat,renameat2,unlink,unlinkat,mkdir,mkdirat,rmdir,link,linkat,symlink,symlinkat,truncate \
  "$dir/jeerbox" >"$work/jeerbox.log" 2>&1 &
tracer=$!
pids+=("$tracer")
main=$(window_named "$caption_re")
[ -n "$main" ] || { fail "the window didn't appear"; finish; }
for _ in $(seq 10); do click_at "$main" 238 252; done # Insult me, ten times
click_at "$main" 36 252                               # Copy
click_at "$main" 318 252                              # About...
box=$(window_named Jeerbox)
[ -n "$box" ] && dismiss "$box"
click_at "$main" 222 302 # the sponsor banner
for _ in $(seq 50); do [ -s "$work/opened" ] && break; sleep 0.1; done
[ -s "$work/opened" ] || fail "the banner click opened nothing: the session wasn't complete"
press "$main" Escape
ended_within "$tracer" 10 || fail "the program didn't end"

# Calls that succeeded and write, none of whose paths lies in an allowed place.
grep -E '^[0-9]+ +(creat|rename|renameat2?|unlink|unlinkat|mkdir|mkdirat|rmdir|link|linkat|symlink|symlinkat|truncate)\(|^[0-9]+ +open(at)?\(.*(O_WRONLY|O_RDWR|O_CREAT|O_TRUNC)' "$work/trace" |
  grep -E '\) += [0-9]' | grep -Fv -e "\"$work/" -e "\"$work\"" -e "\"$XDG_CACHE_HOME/" -e "\"$XDG_CACHE_HOME\"" \
  -e '"/dev/null"' -e '"/dev/tty"' >"$work/writes"
[ "$(wc -l <"$work/trace")" -ge 50 ] || fail "the trace didn't follow the program" # word lists, fonts, libraries
[ -s "$work/writes" ] && fail "writes: $(cat "$work/writes")" || pass "$(wc -l <"$work/trace") traced calls, no writes"
finish
