# Sourced by the Xvfb tests: stand-ins for what lies outside the program.
# A URL handler first in PATH that notes each URL in $work/opened, and a
# local HTTP server as the proxy every request to the maker's host goes
# through (404 is an answer), so no network is needed. Needs $work and the
# array pids, to which the server's pid is added.
mkdir -p "$work/bin"
printf '#!/bin/sh\nprintf "%%s\\n" "$*" >> "%s/opened"\n' "$work" >"$work/bin/xdg-open"
chmod +x "$work/bin/xdg-open"
export PATH="$work/bin:$PATH"
port=$(python3 -c 'import socket; s=socket.socket(); s.bind(("127.0.0.1",0)); print(s.getsockname()[1])')
python3 -m http.server --bind 127.0.0.1 "$port" --directory "$work" >"$work/proxy.log" 2>&1 &
pids+=($!)
export http_proxy="http://127.0.0.1:$port"
