#!/usr/bin/env python3
"""Writes quadSplitterGrid.png, the 100 x 100 tile behind the quad splitter's
panes. Not run by the build: run it by hand after changing a colour and commit
the output. Darker lines win where two lines cross."""
import os
import struct
import zlib

SIZE = 100
FIELD = 0x2F2F2F
EDGE = 0x232323    # line 0, where one tile meets the next
MIDDLE = 0x272727  # line 50
TENTH = 0x2B2B2B   # every other tenth line


def line_colour(i):
    if i == 0:
        return EDGE
    if i == 50:
        return MIDDLE
    if i % 10 == 0:
        return TENTH
    return None


def pixel(x, y):
    lines = [c for c in (line_colour(y), line_colour(x)) if c is not None]
    return min(lines) if lines else FIELD


def chunk(kind, data):
    body = kind + data
    return struct.pack(">I", len(data)) + body + struct.pack(">I", zlib.crc32(body) & 0xFFFFFFFF)


def main():
    raw = bytearray()
    for y in range(SIZE):
        raw.append(0)  # no filter
        for x in range(SIZE):
            raw += pixel(x, y).to_bytes(3, "big")
    header = struct.pack(">IIBBBBB", SIZE, SIZE, 8, 2, 0, 0, 0)
    png = b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) + chunk(b"IDAT", zlib.compress(bytes(raw), 9)) + chunk(b"IEND", b"")
    path = os.path.join(os.path.dirname(os.path.abspath(__file__)), "quadSplitterGrid.png")
    with open(path, "wb") as out:
        out.write(png)


if __name__ == "__main__":
    main()
