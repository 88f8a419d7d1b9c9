#!/usr/bin/env bash
# The build's packages plus the peers `make bench` measures against:
# a fortune program, a grammar-driven sentence generator with its grammars,
# a command-line timer, jq for its reports and valgrind to count instructions.
set -euo pipefail
exec "$(dirname "$0")/install-deps.sh" fortune-mod fortunes-min polygen polygen-data hyperfine jq valgrind "$@"
