# SPDX-License-Identifier: MIT
"""The ground of the demo plan: heights, the river's course, contours, a shaded relief picture."""

from math import exp, sin, sqrt
import struct
import zlib

WIDTH, DEPTH = 260.0, 180.0   # the plan's size in metres
BANK = 5.0                    # half the river's width
STEP = 4.0                    # grid in which contours are traced


def river(x):
    """The river's axis."""
    return 24.0 + 7.0 * sin(x / 38.0)


def height(x, y):
    rise = 128.0 + 0.052 * max(y - river(x), 0.0)
    hill = 3.4 * exp(-((x - 205.0) ** 2 + (y - 158.0) ** 2) / 1500.0)
    dip = 1.3 * exp(-((x - 96.0) ** 2 + (y - 134.0) ** 2) / 500.0)
    return rise + hill - dip


def dry(x, y):
    return y > river(x) + BANK


def contours(level):
    """The lines of one height: lists of points, closed ones ending where they started."""
    pieces = {}
    nx, ny = int(WIDTH / STEP), int(DEPTH / STEP)
    for i in range(nx):
        for j in range(ny):
            corners = [(i * STEP, j * STEP), ((i + 1) * STEP, j * STEP),
                       ((i + 1) * STEP, (j + 1) * STEP), (i * STEP, (j + 1) * STEP)]
            if not all(dry(*c) for c in corners):
                continue
            crossings = [crossing(a, b, level) for a, b in zip(corners, corners[1:] + corners[:1])]
            crossings = [c for c in crossings if c]
            for a, b in zip(crossings[::2], crossings[1::2]):
                pieces.setdefault(a, []).append(b)
                pieces.setdefault(b, []).append(a)
    return chains(pieces)


def crossing(a, b, level):
    """Where the edge meets the level; the same point whichever way the edge runs."""
    a, b = min(a, b), max(a, b)
    ha, hb = height(*a), height(*b)
    if (ha < level) == (hb < level):
        return None
    t = (level - ha) / (hb - ha)
    return (round(a[0] + t * (b[0] - a[0]), 3), round(a[1] + t * (b[1] - a[1]), 3))


def chains(pieces):
    lines = []
    ends = sorted(p for p, near in pieces.items() if len(near) == 1)
    for start in ends + sorted(pieces):
        line = [start]
        while pieces.get(line[-1]):
            here = line[-1]
            there = pieces[here].pop()
            pieces[there].remove(here)
            line.append(there)
        if len(line) > 3:
            lines.append(line)
    return lines


def relief_picture(pixel):
    """The shaded relief as a grey PNG, stored without compression so that it never differs."""
    columns, rows = int(WIDTH / pixel), int(DEPTH / pixel)
    data = bytearray()
    for row in range(rows):
        data.append(0)
        y = DEPTH - (row + 0.5) * pixel
        for column in range(columns):
            data.append(shade((column + 0.5) * pixel, y))
    head = struct.pack(">IIBBBBB", columns, rows, 8, 0, 0, 0, 0)
    parts = (b"IHDR", head), (b"IDAT", stored(bytes(data))), (b"IEND", b"")
    picture = b"\x89PNG\r\n\x1a\n"
    for name, body in parts:
        picture += struct.pack(">I", len(body)) + name + body
        picture += struct.pack(">I", zlib.crc32(name + body))
    return picture, columns, rows


def stored(data):
    """A zlib stream without compression, block by block."""
    size, stream = 65535, b"\x78\x01"
    for start in range(0, len(data), size):
        block = data[start:start + size]
        last = start + size >= len(data)
        stream += struct.pack("<BHH", last, len(block), 65535 - len(block)) + block
    return stream + struct.pack(">I", zlib.adler32(data))


def shade(x, y):
    """Grey of the ground in the light of a low sun in the north-west."""
    if not dry(x, y) and y > river(x) - BANK:
        return 214
    dx = (height(x + 1, y) - height(x - 1, y)) * 4.0
    dy = (height(x, y + 1) - height(x, y - 1)) * 4.0
    light = (-dx * -0.5 - dy * 0.5 + 0.7) / sqrt(dx * dx + dy * dy + 1.0)
    return max(150, min(250, int(170 + 90 * light)))
