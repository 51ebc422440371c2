#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Writes a scene of the same kind and size through ezdxf: DxfWriteEzdxf.py OUT OBJECTS."""
import random
import sys

import ezdxf

LAYERS = ["contours", "roads", "heights", "texts", "borders", "water", "networks", "buildings"]

path, objects = sys.argv[1], int(sys.argv[2])
randoms = random.Random(7)
pool = [(500000 + randoms.randrange(10000000) / 1000 + 0.0001234,
         6200000 + randoms.randrange(10000000) / 1000 + 0.0004321) for _ in range(4096)]
drawing = ezdxf.new("R2004")
space = drawing.modelspace()
for i in range(objects):
    attributes = {"layer": LAYERS[i % len(LAYERS)], "true_color": 0x808080}
    spot = pool[i * 7 % 4096]
    if i % 4 == 0:
        start = i * 13 % (4096 - 40)
        space.add_lwpolyline(pool[start:start + 40], format="xy", dxfattribs=attributes)
    elif i % 4 == 1:
        space.add_line(spot, pool[(i * 7 + 7) % 4096], dxfattribs=attributes)
    elif i % 4 == 2:
        space.add_point((*spot, i % 3000 / 10), dxfattribs=attributes)
    else:
        space.add_text(str(i), dxfattribs={**attributes, "height": 2.5, "insert": spot})
drawing.saveas(path)
