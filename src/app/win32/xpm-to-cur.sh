#!/bin/sh
# Makes a Windows cursor file from an XPM that carries its hot spot in its
# header ("32 32 3 1 5 0"): ImageMagick writes it as an icon, and the
# header's type and hot spot fields are then set as a cursor's are.
# Usage: xpm-to-cur.sh CONVERT XPM CUR
set -eu
convert=$1 xpm=$2 cur=$3
set -- $(sed -n 's/^"\([0-9][0-9 ]*\)",$/\1/p' "$xpm" | head -n 1)
[ $# -eq 6 ] || { echo "xpm-to-cur: $xpm names no hot spot" >&2; exit 1; }
x=$5 y=$6
"$convert" "$xpm" "ICO:$cur"
word() { printf "\\$(printf %03o $(($1 % 256)))\\$(printf %03o $(($1 / 256)))"; }
{ word 2; } | dd of="$cur" bs=1 seek=2 conv=notrunc status=none
{ word "$x"; word "$y"; } | dd of="$cur" bs=1 seek=10 conv=notrunc status=none
