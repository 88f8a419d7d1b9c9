#!/usr/bin/env bash
# The program writes nothing to disk: a whole session of the real jeerbox
# on a private X server (start, ten sentences, copy, about box, a banner
# click answered by a local server, close), traced with strace -f, fails
# if any file is created, opened for writing, renamed, linked or removed.
#
# Allowed, because they belong to the session rather than to the program:
# - the test's own work directory (the stand-in URL handler writes there),
# - /dev/null and /dev/tty (standard descriptors of child processes),
# - $XDG_CACHE_HOME, where fontconfig and Mesa may keep caches of their own.
# Usage: writes_nothing_test.sh PROGRAM_DIR CAPTION
set -uo pipefail
dir=$1 caption=$2

if [ -z "${JEERBOX_E2E_IN_XVFB:-}" ]; then
  for tool in xvfb-run xauth xdotool strace python3; do
    command -v "$tool" >/dev/null || { echo "SKIPPED: $tool is missing (scripts/install-deps.sh installs it)"; exit 77; }
  done
  export JEERBOX_E2E_IN_XVFB=1
  exec xvfb-run -a -s "-screen 0 1024x768x24 -nolisten tcp" "$0" "$@"
fi

work=$(mktemp -d "$dir/writes.XXXXXX")
chmod 700 "$work"
export XDG_RUNTIME_DIR=$work HOME=$work/home XDG_CACHE_HOME=$work/home/.cache
mkdir -p "$HOME"
unset QT_QPA_PLATFORM no_proxy NO_PROXY
export SDL_AUDIODRIVER=dummy  # a mixer that plays to nowhere: audio is on, nothing is written
pids=()
cleanup() {
  for p in "${pids[@]}"; do { kill -9 "$p" && wait "$p"; } 2>/dev/null; done
  rm -rf "$work"
}
trap cleanup EXIT
[ -n "${JEERBOX_KEEP_TRACE:-}" ] && trap 'cp "$work/trace" "$JEERBOX_KEEP_TRACE"; cleanup' EXIT

source "$(dirname "$0")/session_stand_ins.sh"

strace -f -qq -o "$work/trace" \
  -e trace=open,openat,creat,rename,renameat,renameat2,unlink,unlinkat,mkdir,mkdirat,rmdir,link,linkat,symlink,symlinkat,truncate \
  "$dir/jeerbox" >"$work/jeerbox.log" 2>&1 &
tracer=$!
pids+=("$tracer")

caption_re=$(printf '%s' "$caption" | sed 's/[.]/\\./g')
main=$(timeout 20 xdotool search --sync --onlyvisible --name "^$caption_re\$" 2>/dev/null | head -n 1)
[ -n "$main" ] || { echo "FAIL: the window didn't appear"; cat "$work/jeerbox.log"; exit 1; }
click() { xdotool mousemove --window "$main" "$1" "$2" click 1; sleep 0.3; }
for _ in $(seq 10); do click 238 252; done      # Insult me, ten times
click 36 252                                      # Copy
click 318 252                                     # About...
box=$(timeout 10 xdotool search --sync --onlyvisible --name "^Jeerbox\$" 2>/dev/null | head -n 1)
[ -n "$box" ] && { xdotool windowfocus --sync "$box"; xdotool key Return; sleep 0.3; }
click 222 302                                     # the sponsor banner
for _ in $(seq 50); do [ -s "$work/opened" ] && break; sleep 0.1; done
xdotool windowfocus --sync "$main"; xdotool key Escape
for _ in $(seq 100); do kill -0 "$tracer" 2>/dev/null || break; sleep 0.1; done
wait "$tracer" 2>/dev/null

[ -s "$work/opened" ] || echo "note: the banner click opened nothing (was the session complete?)"
python3 - "$work/trace" "$work" "$XDG_CACHE_HOME" <<'PY'
import re, sys
trace, work, cache = sys.argv[1:4]
allowed = (work + "/", cache + "/")
devices = {"/dev/null", "/dev/tty"}
writes = re.compile(r"O_WRONLY|O_RDWR|O_CREAT|O_TRUNC")
bad, allowed_writes, calls = [], [], 0
for line in open(trace, errors="replace"):
    calls += 1
    m = re.match(r"\d+\s+(\w+)\((.*)\)\s+=\s+(-?\d+)", line)
    if not m or int(m.group(3)) < 0:
        continue
    call, args = m.group(1), m.group(2)
    paths = re.findall(r'"((?:[^"\\]|\\.)*)"', args)
    if call in ("open", "openat") and not writes.search(args):
        continue
    if any(p in devices or p.startswith(allowed) or p == work or p == cache for p in paths):
        allowed_writes.append(line.strip())
        continue
    bad.append(line.strip())
if calls < 50:  # the program opens its word lists, fonts and libraries
    print(f"FAIL: only {calls} traced calls; the trace didn't follow the program")
    sys.exit(1)
for line in bad:
    print("WRITE:", line)
print(f"{calls} traced calls, {len(allowed_writes)} writes in allowed places, {len(bad)} elsewhere")
sys.exit(1 if bad else 0)
PY
