# Shared by the install checks: failure reporting and a scratch directory.
fail() {
  echo "FAIL: $*" >&2
  failures=$((failures + 1))
}

expect() {  # expect DESCRIPTION COMMAND...: the command must succeed
  local what=$1
  shift
  "$@" || fail "$what"
}

failures=0
scratch=$(mktemp -d "${TMPDIR:-/tmp}/jeerbox-install.XXXXXX")
trap 'rm -rf "$scratch"' EXIT

finish() {
  [ "$failures" -eq 0 ] && echo "ok" && exit 0
  echo "$failures check(s) failed" >&2
  exit 1
}
