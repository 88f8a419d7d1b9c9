#!/usr/bin/env bash
# Installs the build into a scratch prefix and runs the installed programs
# through their bin/ links from elsewhere, as a user would.
#   check_install.sh BUILD_DIR HAS_WINDOW_PROGRAM(0|1)
set -uo pipefail
build=$1
has_window=$2
source "$(dirname "$0")/common.sh"

prefix=$scratch/prefix
if ! cmake --install "$build" --prefix "$prefix" >"$scratch/install.log" 2>&1; then
  cat "$scratch/install.log" >&2
  fail "cmake --install"
  finish
fi
lib=$prefix/lib/jeerbox

programs=(jeer)
[ "$has_window" = 1 ] && programs+=(jeerbox)
for p in "${programs[@]}"; do
  test -x "$lib/$p" -a ! -L "$lib/$p" || fail "$p is an executable in lib/jeerbox"
  target=$(readlink "$prefix/bin/$p") || fail "bin/$p is not a link"
  [ "$target" = "../lib/jeerbox/$p" ] || fail "bin/$p points to '$target', not ../lib/jeerbox/$p"
done
[ "$has_window" = 1 ] || { test ! -e "$prefix/bin/jeerbox" || fail "no bin/jeerbox without the window program"; }

for f in System/Misc.001 System/Misc.002 System/General.001 UserInfo/Tallowick.cfg; do
  cmp -s "$lib/$f" "$build/$f" || fail "lib/jeerbox/$f is missing or differs from the build's"
done
media=$(find "$lib/Media" -type f \( -name '*.mp3' -o -name '*.wav' \) | wc -l)
[ "$media" -ge 1 ] || fail "no sounds in lib/jeerbox/Media"
[ -z "$(find "$lib" -name '*.tmp' -o -name '.*' -type f)" ] || fail "stray files in lib/jeerbox"

# The prefix is moved first: the links must be relative to keep working, and
# the program must not depend on the directory it was installed to or run from.
mv "$prefix" "$scratch/moved"
prefix=$scratch/moved
lib=$prefix/lib/jeerbox
mkdir "$scratch/elsewhere"
# Five sentences, none the fixed line, and no word on stderr of a missing System/.
out=$(cd "$scratch/elsewhere" && "$prefix/bin/jeer" say --count 5 2>&1) &&
  [ "$(grep -c '[a-z]' <<<"$out")" -eq 5 ] && ! grep -q 'System' <<<"$out" ||
  fail "the installed jeer say through bin/: $out"
# The shipped word lists check clean, with the extra Misc set the one marked file.
"$prefix/bin/jeer" check --root "$lib" >"$scratch/check.log" && grep -Eq '^Misc +2 +1$' "$scratch/check.log" ||
  { cat "$scratch/check.log"; fail "jeer check of the installed word lists"; }
(cd "$scratch/elsewhere" && "$prefix/bin/jeer" check >/dev/null) ||
  fail "jeer check through the bin/ link is not clean"

share=$prefix/share
desktop=$share/applications/jeerbox.desktop
metainfo=$share/metainfo/org.example.Jeerbox.metainfo.xml
for size in 32 48 128 256; do
  icon=$share/icons/hicolor/${size}x${size}/apps/jeerbox.png
  # PNG width and height are the big-endian words at bytes 16 and 20.
  dims=$(od -An -tu1 -j16 -N8 "$icon" 2>/dev/null | tr -s ' ' | sed 's/^ //')
  want="0 0 $((size / 256)) $((size % 256)) 0 0 $((size / 256)) $((size % 256))"
  [ "$dims" = "$want" ] || fail "$icon is not a ${size}x${size} PNG ($dims)"
done
version=$("$prefix/bin/jeer" --version)
for page in jeer jeerbox; do
  grep -q "\"Jeerbox ${version#jeer }\"" "$share/man/man1/$page.1" || fail "$page.1 doesn't carry $version"
done

# The completion, as bash-completion loads it: "jeer p<Tab>" and a key.
completion=$share/bash-completion/completions/jeer
complete_words() {
  bash -c 'source /usr/share/bash-completion/bash_completion; source "$1"; shift
    COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1)); COMP_LINE="$*"; COMP_POINT=${#COMP_LINE}
    _jeer; echo "${COMPREPLY[*]}"' _ "$completion" "$@"
}
[ "$(complete_words jeer p)" = "pick pack" ] || fail "completion of 'jeer p': '$(complete_words jeer p)'"
[ "$(complete_words jeer lines General-Cu)" = "General-Curse" ] || fail "no key completion"

# The metainfo must name the desktop entry and the icon that are installed.
grep -q '<launchable type="desktop-id">jeerbox.desktop</launchable>' "$metainfo" ||
  fail "metainfo does not launch jeerbox.desktop"
grep -qx 'Icon=jeerbox' "$desktop" || fail "desktop entry does not use the jeerbox icon"
grep -qx 'Exec=jeerbox' "$desktop" || fail "desktop entry does not run jeerbox"

finish
