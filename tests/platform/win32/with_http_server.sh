#!/usr/bin/env bash
# Runs a command with a local HTTP server beside it, its port in
# JEERBOX_TEST_HTTP_PORT, and a port nobody listens on in
# JEERBOX_TEST_CLOSED_PORT.
set -uo pipefail
read -r port closed < <(python3 -c '
import socket
a, b = socket.socket(), socket.socket()
a.bind(("127.0.0.1", 0)); b.bind(("127.0.0.1", 0))
print(a.getsockname()[1], b.getsockname()[1])')
root=$(mktemp -d)
python3 -m http.server --bind 127.0.0.1 "$port" --directory "$root" >/dev/null 2>&1 &
server=$!
trap 'kill $server 2>/dev/null; wait $server 2>/dev/null; rm -rf "$root"' EXIT
for _ in $(seq 50); do
  python3 -c 'import socket,sys; socket.create_connection(("127.0.0.1", int(sys.argv[1])), 1)' "$port" 2>/dev/null && break
  sleep 0.1
done
JEERBOX_TEST_HTTP_PORT=$port JEERBOX_TEST_CLOSED_PORT=$closed "$@"
