# Shared by the install checks: failure reporting and a scratch directory.
fail() { echo "FAIL: $*" >&2; failures=$((failures + 1)); }
finish() { [ "$failures" -eq 0 ] && echo ok && exit 0; echo "$failures check(s) failed" >&2; exit 1; }
failures=0
scratch=$(mktemp -d "${TMPDIR:-/tmp}/jeerbox-install.XXXXXX")
trap 'rm -rf "$scratch"' EXIT
