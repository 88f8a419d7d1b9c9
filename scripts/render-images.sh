#!/usr/bin/env bash
# Renders the sponsor banner from its SVG source into the GIF the program
# carries (librsvg draws, ImageMagick writes the GIF). Run after editing
# data/images/sponsor_banner.svg; the XPM images need no rendering.
set -euo pipefail
cd "$(dirname "$0")/../data/images"
for tool in rsvg-convert convert; do
  command -v "$tool" >/dev/null || { echo "render-images: $tool is missing (scripts/install-deps.sh installs it)" >&2; exit 1; }
done
tmp=$(mktemp --suffix=.png)
trap 'rm -f "$tmp"' EXIT
rsvg-convert --width 429 --height 44 sponsor_banner.svg -o "$tmp"
# The banner sits on the blue band, so the transparent corners become that blue.
convert "$tmp" -background '#0099FF' -flatten +dither -colors 64 sponsor_banner.gif
identify sponsor_banner.gif
