# SPDX-License-Identifier: MIT
"""Prints what ezdxf finds in a drawing: one "error" or "fix" line a remark, then counts by kind, layers,
texts and the first point. Exit code 77 where ezdxf is missing."""
import collections
import re
import sys

try:
    import ezdxf
except ImportError:
    sys.exit(77)

sys.stdout.reconfigure(encoding="utf-8")
drawing = ezdxf.readfile(sys.argv[1])
audit = drawing.audit()
for kind, remarks in (("error", audit.errors), ("fix", audit.fixes)):
    for remark in remarks:
        print(kind, re.sub(r"#[0-9a-fA-F]+", "#", remark.message))
space = drawing.modelspace()
for name, count in sorted(collections.Counter(e.dxftype() for e in space).items()):
    print("count", name, count)
for layer in sorted(layer.dxf.name for layer in drawing.layers):
    print("layer", layer)
for text in space.query("TEXT"):
    print("text", text.dxf.text)
for point in space.query("POINT"):
    print("point", *(f"{value:g}" for value in point.dxf.location))
