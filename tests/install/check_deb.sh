#!/usr/bin/env bash
# Builds the Debian package from this build tree (cpack into a scratch
# directory) and reads back its file list and control fields.
#   check_deb.sh BUILD_DIR HAS_WINDOW_PROGRAM(0|1)
set -uo pipefail
build=$1
has_window=$2
source "$(dirname "$0")/common.sh"

if ! cpack --config "$build/CPackConfig.cmake" -G DEB -B "$scratch" >"$scratch/cpack.log" 2>&1; then
  cat "$scratch/cpack.log" >&2
  fail "cpack"
  finish
fi
debs=("$scratch"/jeerbox_*.deb)
[ ${#debs[@]} -eq 1 ] && [ -f "${debs[0]}" ] || { fail "no single jeerbox_*.deb: ${debs[*]}"; finish; }
deb=${debs[0]}
echo "$(basename "$deb")"

# Paths as dpkg-deb -c lists them: "./usr/bin/jeer -> ../lib/jeerbox/jeer".
dpkg-deb -c "$deb" | awk '{ $1 = $2 = $3 = $4 = $5 = ""; sub(/^ +/, ""); print }' >"$scratch/files"
# The layout is the install test's; here, that the package holds all of it
# under /usr: one program, its link, its word lists, its sounds.
has() { grep -qxF "$1" "$scratch/files" || fail "package lacks $1"; }
[ "$has_window" = 1 ] && p=jeerbox || p=jeer
has "./usr/bin/$p -> ../lib/jeerbox/$p"
has "./usr/share/man/man1/$p.1"
has ./usr/lib/jeerbox/System/Misc.001
grep -q '^\./usr/lib/jeerbox/Media/.*\.\(mp3\|wav\)$' "$scratch/files" || fail "package has no sounds"
# Only the program's own files, and all under /usr.
stray=$(grep -v -e '^\./$' -e '^\./usr/\(\(lib\|share\)/\)\?$' -e '^\./usr/\(bin\|lib/jeerbox\|share/\(applications\|metainfo\|icons\|man\|doc\|bash-completion\(/completions\)\?\)\)\(/\|$\)' \
  "$scratch/files")
stray+=$(grep -e '\.a$' -e '\.h$' -e '/include/' -e '_test' "$scratch/files")
[ -z "$stray" ] || fail "package holds files it should not: $stray"

field() { dpkg-deb -f "$deb" "$1"; }
[ "$(field Package)" = jeerbox ] || fail "Package is '$(field Package)'"
[ "$(field Architecture)" = "$(dpkg --print-architecture)" ] || fail "Architecture is '$(field Architecture)'"
field Maintainer | grep -q '@example\.org>$' || fail "Maintainer is '$(field Maintainer)'"
[ -n "$(field Description)" ] || fail "no Description"
depends=$(field Depends)
echo "Depends: $depends"
needed=(libc6 libstdc++6)
[ "$has_window" = 1 ] &&
  needed+=(libqt6widgets6 libqt6gui6 libqt6core6 libsdl2-2.0-0 libsdl2-mixer-2.0-0 libcurl4)
for lib in "${needed[@]}"; do
  printf '%s\n' "$depends" | tr ',' '\n' | grep -q "^ *$lib\( \|$\)" || fail "Depends does not name $lib"
done

finish
