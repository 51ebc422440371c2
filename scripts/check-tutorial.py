#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""The C++ of docs/tutorial.md, put together, is examples/DrawingToTables.cpp."""

import pathlib
import re
import sys

root = pathlib.Path(__file__).resolve().parent.parent


def lines_of(text):
    return [line for line in text.splitlines() if line.strip() and not line.startswith("//")]


tutorial = (root / "docs/tutorial.md").read_text(encoding="utf-8")
told = lines_of("\n".join(re.findall(r"^```cpp\n(.*?)^```$", tutorial, re.S | re.M)))
program = lines_of((root / "examples/DrawingToTables.cpp").read_text(encoding="utf-8"))
if not program or told != program:
    for number, (one, other) in enumerate(zip(told, program), 1):
        if one != other:
            print(f"line {number}: the tutorial has\n    {one}\nthe program has\n    {other}")
            break
    sys.exit(f"tutorial: {len(told)} lines told, {len(program)} lines in the program")
print(f"tutorial: all {len(program)} lines are those of the program")
