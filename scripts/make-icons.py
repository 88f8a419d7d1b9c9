#!/usr/bin/env python3
"""Scales the program's 32x32 XPM icon to the hicolor sizes as PNGs, pixel
for pixel (nearest neighbour), so desktop menus show the same picture sharp.

    scripts/make-icons.py [ICON.xpm] [OUT_DIR]

Defaults: data/images/jeerbox_icon.xpm into data/icons/ (jeerbox-NN.png).
Needs only the Python standard library; the PNGs are kept in the repository.
"""
import re
import struct
import sys
import zlib
from pathlib import Path

SIZES = (32, 48, 128, 256)


def read_xpm(path):
    strings = re.findall(r'"((?:[^"\\]|\\.)*)"', Path(path).read_text())
    width, height, ncolors, cpp = (int(v) for v in strings[0].split()[:4])
    palette = {}
    for entry in strings[1:1 + ncolors]:
        key, fields = entry[:cpp], entry[cpp:].split()
        value = fields[fields.index("c") + 1]
        if value.lower() == "none":
            palette[key] = (0, 0, 0, 0)
        elif re.fullmatch(r"#[0-9A-Fa-f]{6}", value):
            palette[key] = tuple(int(value[i:i + 2], 16) for i in (1, 3, 5)) + (255,)
        else:
            sys.exit(f"{path}: colour {value!r} is not #RRGGBB or None")
    rows = strings[1 + ncolors:1 + ncolors + height]
    if len(rows) != height or any(len(r) != width * cpp for r in rows):
        sys.exit(f"{path}: pixel rows do not match {width}x{height}")
    return [[palette[r[x * cpp:(x + 1) * cpp]] for x in range(width)] for r in rows]


def scaled(pixels, size):
    h, w = len(pixels), len(pixels[0])
    return [[pixels[y * h // size][x * w // size] for x in range(size)] for y in range(size)]


def png(pixels):
    def chunk(kind, data):
        return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))
    size = len(pixels)
    raw = b"".join(b"\0" + bytes(c for px in row for c in px) for row in pixels)
    header = struct.pack(">IIBBBBB", size, size, 8, 6, 0, 0, 0)  # 8-bit RGBA
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header)
            + chunk(b"IDAT", zlib.compress(raw, 9)) + chunk(b"IEND", b""))


def main():
    source = sys.argv[1] if len(sys.argv) > 1 else "data/images/jeerbox_icon.xpm"
    out = Path(sys.argv[2] if len(sys.argv) > 2 else "data/icons")
    out.mkdir(parents=True, exist_ok=True)
    pixels = read_xpm(source)
    for size in SIZES:
        target = out / f"jeerbox-{size}.png"
        target.write_bytes(png(scaled(pixels, size)))
        print(target)


if __name__ == "__main__":
    main()
