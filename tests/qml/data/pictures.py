#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
# Writes the pictures of this folder, pixel by pixel (red, green, blue, alpha).
import pathlib
import struct
import zlib

WHITE = (255, 255, 255, 255)
HALF_WHITE = (255, 255, 255, 128)
BLACK = (0, 0, 0, 255)
NOTHING = (0, 0, 0, 0)
RED = (255, 0, 0, 255)


def chunk(name, data):
    return struct.pack(">I", len(data)) + name + data + struct.pack(">I", zlib.crc32(name + data))


def write(name, width, height, pixel):
    rows = b"".join(b"\0" + b"".join(bytes(pixel(x, y)) for x in range(width)) for y in range(height))
    header = struct.pack(">IIBBBBB", width, height, 8, 6, 0, 0, 0)
    data = chunk(b"IHDR", header) + chunk(b"IDAT", zlib.compress(rows, 9)) + chunk(b"IEND", b"")
    (pathlib.Path(__file__).parent / name).write_bytes(b"\x89PNG\r\n\x1a\n" + data)


# One of each kind of pixel that recolouring tells apart.
write("pixels.png", 4, 2, lambda x, y: [(WHITE, HALF_WHITE, BLACK, NOTHING), (RED, WHITE, WHITE, BLACK)][y][x])
# A white icon.
write("icon.png", 24, 16, lambda x, y: WHITE)
# Cells of 50 by 50 pixels, each in a colour of its own.
write("grid.png", 300, 200, lambda x, y: (x // 50 * 40, y // 50 * 60, 255, 255))
# Strips of frames of 60 by 60 pixels. A pixel tells its frame (red), its column there (green) and its strip (blue).
for name, width, blue in (("strip_right", 480, 0), ("strip_left", 480, 255), ("strip_short", 110, 0)):
    write(name + ".png", width, 60, lambda x, y, blue=blue: (x // 60 * 30, x % 60 * 4, blue, 255))
