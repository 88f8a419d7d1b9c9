# Sourced by the tests that drive the real program on an X server: a private
# Xvfb (the test re-run under xvfb-run; skipped, exit 77, if a tool is
# missing) or, given $wine_run, the Wine session's. A private $work (removed
# at the end with every process in $pids) and stand-ins for the outside: a
# URL handler first in PATH noting each URL in $work/opened, and an HTTP
# server on $port as the proxy to the maker's host (404 is an answer);
# $closed is a port nobody listens on. Needs $dir and $caption.
if [ -n "${wine_run:-}" ]; then
  eval "$("$wine_run" --env)" || exit 1
elif [ -z "${JEERBOX_IN_XVFB:-}" ]; then
  for tool in xvfb-run xauth xdotool python3 ${tools:-}; do
    command -v "$tool" >/dev/null || { echo "SKIPPED: $tool is missing (scripts/install-deps.sh installs it)"; exit 77; }
  done
  export JEERBOX_IN_XVFB=1
  exec xvfb-run -a -s "-screen 0 1024x768x24 -noreset -nolisten tcp" "$0" "$@"
fi

work=$(mktemp -d "$dir/../session.XXXXXX")
chmod 700 "$work"
[ -n "${wine_run:-}" ] || export XDG_RUNTIME_DIR=$work
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
finish() { [ "$failures" -eq 0 ] && exit 0; cat "$work"/*.log; exit 1; }

mkdir -p "$work/bin"
printf '#!/bin/sh\nprintf "%%s\\n" "$*" >> "%s/opened"\n' "$work" >"$work/bin/xdg-open"
chmod +x "$work/bin/xdg-open"
export PATH="$work/bin:$PATH"
read -r port closed < <(python3 -c '
import socket
a, b = socket.socket(), socket.socket()
a.bind(("127.0.0.1", 0)); b.bind(("127.0.0.1", 0))
print(a.getsockname()[1], b.getsockname()[1])')
python3 -m http.server --bind 127.0.0.1 "$port" --directory "$work" >"$work/proxy.log" 2>&1 &
pids+=($!)
tested_maker() { grep -q "GET http://[^ ]*/connectiontest.html" "$work/proxy.log"; }

caption_re=$(printf '%s' "$caption" | sed 's/[.]/\\./g')
window_named() {  # window_named NAME: the visible window's id, waiting up to 20 s
  timeout 20 xdotool search --sync --onlyvisible --name "^$1\$" 2>/dev/null | head -n 1
}
windows_named() { xdotool search --onlyvisible --name "^$1\$" 2>/dev/null | wc -l; }  # how many
ended_within() {  # ended_within PID SECONDS
  for _ in $(seq $(($2 * 10))); do kill -0 "$1" 2>/dev/null || return 0; sleep 0.1; done
  return 1
}
press() {  # press WINDOW KEYS...: keys typed into the window
  xdotool windowfocus --sync "$1" 2>/dev/null; shift; xdotool key "$@"
  sleep 0.4
}
# The pointer moves off first: Wine places a click where the pointer last
# moved, and a new window may lie just where the last one was. Window
# coordinates include the frame Wine draws ($frame_left, $frame_top).
click_at() {  # click_at WINDOW X Y (client pixels)
  xdotool mousemove 0 0 sleep 0.1 mousemove --window "$1" $(($2 + ${frame_left:-0})) $(($3 + ${frame_top:-0})) \
    sleep 0.1 click 1
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

# Checks both programs pass; `start ARGS...` is the test's own, and sets $pid.
warned_then_window() {  # warned_then_window START_ARGS...: sets $main
  start "$@"
  local box
  box=$(window_named Jeerbox)
  [ -n "$box" ] && pass "command line warned about" || fail "no command-line warning"
  [ -n "$box" ] && { dismiss "$box" || fail "the warning won't go"; }
  main=$(window_named "$caption_re")
  [ -n "$main" ] || { fail "no window '$caption' after the warning"; finish; }
}
second_copy_refused() {  # second_copy_refused START_ARGS...: while $first runs
  start "$@"
  local box
  box=$(window_named Jeerbox)
  [ -n "$box" ] && pass "second copy shows the message box" || fail "no message box from the second copy"
  [ "$(windows_named "$caption_re")" -eq 1 ] || fail "a second main window"
  [ -n "$box" ] && dismiss "$box"
  ended_within "$pid" 10 && pass "second copy ended after OK" || fail "second copy still runs"
  kill -0 "$first" 2>/dev/null || fail "first copy gone"
}
escape_ends() {  # escape_ends WINDOW PID
  press "$1" Escape
  ended_within "$2" 10 && pass "Escape ended the program" || fail "still running after Escape"
  wait "$2"
  local rc=$?
  [ "$rc" -eq 0 ] || fail "exit status $rc"
}
