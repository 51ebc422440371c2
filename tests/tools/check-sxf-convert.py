#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Converts real SXF maps and compares the result with what GDAL reads from the source.

    check-sxf-convert.py VELORX FALLBACK_CORPUS dxf|mif|sxf|txt
    check-sxf-convert.py VELORX DRAWING demo

The second form makes a map of a drawing in both forms, and compares what GDAL reads of the binary one with
what the text form says. Exit code 77 where GDAL or the maps are missing. Objects come in the order of the source in every format,
so that they are compared one by one.
"""
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

MAPS = ["sxf/gdal/100_test.sxf", "sxf/sxf4j/K37007.sxf"]
TOLERANCE = 2e-6  # the formats are written with six decimals
KINDS = ("point", "line", "area", "text")
FRAME = 91000000


class Objects:
    """Objects by kind: each the list of its contours, a contour a list of (east, north)."""

    def __init__(self):
        self.kinds = {kind: [] for kind in KINDS}
        self.codes = {kind: [] for kind in KINDS}
        self.attributes = {kind: [] for kind in KINDS}
        self.unplaced = 0  # texts of which GDAL tells no place

    def add(self, kind, contours, code=None, attributes=None):
        self.kinds[kind].append(contours)
        self.codes[kind].append(code)
        self.attributes[kind].append(attributes)


def features(path):
    """What GDAL reads, as (number, attributes, geometry type, contours)."""
    done = subprocess.run(["ogrinfo", "-ro", "-al", str(path)], capture_output=True, text=True, check=True)
    found = []
    for number, body in re.findall(r"^OGRFeature\([^\n]*\):(\d+)\n(.*?)\n\n", done.stdout + "\n\n", re.S | re.M):
        attributes = dict(re.findall(r"^  (\S+) \([^)]*\) = (.*)$", body, re.M))
        style = re.search(r"^  Style = (.*)$", body, re.M)
        attributes["style"] = style.group(1) if style else ""
        shape = re.search(r"^  ((?:MULTI)?(?:POINT|LINESTRING|POLYGON))(?: Z)? \((.*)\)$", body, re.M)
        contours = []
        for contour in re.findall(r"[^()]+", shape.group(2)) if shape else []:
            if contour.strip(", "):
                contours.append([tuple(float(n) for n in v.split()[:2]) for v in contour.split(",")])
        found.append((int(number), attributes, shape.group(1) if shape else "", contours))
    return sorted(found, key=lambda feature: feature[0])


def is_rectangle(contour):
    return len(contour) == 5 and all(a[0] == b[0] or a[1] == b[1] for a, b in zip(contour, contour[1:]))


def read_sxf(path):
    objects = Objects()
    for _, attributes, shape, contours in features(path):
        code = int(attributes["CLCODE"])
        semantics = {name: value for name, value in attributes.items() if name.startswith("SC_")}
        if shape.endswith("POINT"):
            objects.add("point", [contours[0][:1]], code, semantics)
        elif shape.endswith("POLYGON"):
            objects.add("area", contours, code, semantics)
        elif "TEXT" in attributes and contours:
            for contour in contours:
                objects.add("text", [contour], code)
        elif "TEXT" in attributes or not contours:
            objects.unplaced += 1
        elif code != FRAME or not is_rectangle(contours[0]):
            objects.add("line", contours, code, semantics)
    return objects


def read_text_form(path):
    kinds = {"LIN": "line", "SQR": "area", "DOT": "point", "VEC": "point", "TIT": "text", "MIX": "text"}
    objects = Objects()
    content = pathlib.Path(path).read_text(encoding="windows-1251")
    for block in content.split(".OBJ ")[1:]:
        lines = block.split("\n")
        code, kind = int(lines[0].split()[0]), kinds[lines[0].split()[1]]
        at = next(i for i, line in enumerate(lines[1:], 1) if line[:1].isdigit())
        met = [line for line in lines if line.startswith(".MET ")]
        contours = []
        for _ in range(1 + (int(met[0].split()[1]) if met else 0)):
            count = int(lines[at])
            contours.append([tuple(float(n) for n in reversed(line.split()[:2]))
                             for line in lines[at + 1:at + 1 + count]])
            at += 1 + count
        if kind == "point":
            contours = [contours[0][:1]]
        if code != FRAME or not is_rectangle(contours[0]):
            objects.add(kind, contours, code)
    return objects


def read_mif(path):
    objects = Objects()
    for _, attributes, shape, contours in features(path):
        code = int(attributes.get("SXF_CODE", 0))
        if attributes["style"].startswith("LABEL"):
            objects.add("text", [], code)
        elif shape.endswith("POINT"):
            objects.add("point", contours, code)
        elif shape.endswith("POLYGON"):
            objects.add("area", contours, code)
        else:
            objects.add("line", contours, code)
    return objects


def read_dxf(path, areas):
    """Areas without a fill are closed polylines there, one a ring: as many as `areas` has, in its order."""
    objects = Objects()
    rings = [ring for area in areas for ring in area]
    lines = []
    for _, attributes, shape, contours in features(path):
        if "Text" in attributes:
            objects.add("text", [])
        elif shape.endswith("POINT"):
            objects.add("point", contours)
        else:
            lines.append(contours)
    left = iter(rings)
    wanted = next(left, None)
    found = []
    for contours in lines:
        if wanted is not None and same(contours[0], wanted):
            found.append(contours[0])
            wanted = next(left, None)
        else:
            objects.add("line", contours)
    for area in areas:
        if len(found) >= len(area):
            objects.add("area", found[:len(area)])
            found = found[len(area):]
    return objects


def same(contour, wanted):
    return len(contour) == len(wanted) and all(
        abs(a - b) <= TOLERANCE for one, other in zip(contour, wanted) for a, b in zip(one, other))


class Comparison:
    def __init__(self, name):
        self.name = name
        self.faults = 0
        self.compared = 0

    def expect(self, fact, what):
        self.compared += 1
        if not fact:
            self.faults += 1
            if self.faults <= 10:
                print(f"{self.name}: {what}")

    def kind(self, source, target, kind, first_ring_only=False):
        want, have = source.kinds[kind], target.kinds[kind]
        self.expect(len(want) == len(have), f"{len(have)} objects are {kind}, {len(want)} should be")
        for i, (one, other) in enumerate(zip(want, have)):
            self.expect(first_ring_only or len(one) == len(other), f"{kind} {i}: {len(other)} contours")
            for contour, wanted in zip(other, one[:1] if first_ring_only else one):
                self.expect(same(contour, wanted), f"{kind} {i} lies elsewhere: {contour[:2]}, not {wanted[:2]}")
            if target.codes[kind][i] is not None:
                self.expect(target.codes[kind][i] == source.codes[kind][i], f"{kind} {i} has another code")
            if target.attributes[kind][i] is not None and source.attributes[kind][i] is not None:
                self.expect(target.attributes[kind][i] == source.attributes[kind][i],
                            f"{kind} {i} has other attributes: {target.attributes[kind][i]}")

    def texts(self, source, target):
        """GDAL tells no place of mixed texts: what it does tell must come in the same order."""
        rest = iter(target.kinds["text"])
        for i, text in enumerate(source.kinds["text"]):
            self.expect(any(same(other[0], text[0]) for other in rest), f"text {i} is missing")
        more = len(target.kinds["text"]) - len(source.kinds["text"])
        self.expect(more >= source.unplaced, f"{more} texts more, {source.unplaced} or more should be")


def check(velorx, path, family):
    with tempfile.TemporaryDirectory() as folder:
        result = os.path.join(folder, "map." + family)
        done = subprocess.run([velorx, "convert", str(path), result], capture_output=True)
        sys.stdout.write(done.stderr.decode(errors="replace"))
        if done.returncode != 0:
            return 1
        source = read_sxf(path)
        comparison = Comparison(f"{path.name} as {family}")
        if family == "sxf":
            target = read_sxf(result)
        elif family == "txt":
            target = read_text_form(result)
        elif family == "mif":
            target = read_mif(result)
        else:
            target = read_dxf(result, source.kinds["area"])
        comparison.kind(source, target, "point")
        comparison.kind(source, target, "line")
        # GDAL reads holes only where a bit of the record is clear that the binary form as written has set.
        comparison.kind(source, target, "area", first_ring_only=family == "sxf")
        if family in ("sxf", "txt"):
            comparison.texts(source, target)
        else:
            count = len(target.kinds["text"])
            comparison.expect(count > 0, "there are no texts")
        print(f"{comparison.name}: {comparison.compared} facts compared, {comparison.faults} are off; "
              + ", ".join(f"{len(target.kinds[kind])} {kind}" for kind in KINDS))
        return comparison.faults


def check_drawing(velorx, path):
    with tempfile.TemporaryDirectory() as folder:
        binary, text = os.path.join(folder, "map.sxf"), os.path.join(folder, "map.txt")
        for result in (binary, text):
            subprocess.run([velorx, "convert", "--quiet", path, result], check=True)
        source, target = read_text_form(text), read_sxf(binary)
        comparison = Comparison(os.path.basename(path))
        for kind in KINDS:
            comparison.expect(len(source.kinds[kind]) > 50, f"hardly a {kind}")
            comparison.kind(source, target, kind, first_ring_only=True)
        print(f"{comparison.name}: {comparison.compared} facts compared, {comparison.faults} are off")
        return comparison.faults


def main():
    velorx, fallback, family = sys.argv[1:4]
    if family == "demo":
        if not shutil.which("ogrinfo"):
            print("gdal-bin is missing")
            sys.exit(77)
        sys.exit(1 if check_drawing(velorx, fallback) else 0)
    corpus = pathlib.Path(os.environ.get("VELOREXCHANGE_CORPUS", fallback))
    paths = [corpus / name for name in MAPS if (corpus / name).exists()]
    if not paths or not shutil.which("ogrinfo"):
        print("gdal-bin or the maps are missing")
        sys.exit(77)
    sys.exit(1 if sum(check(velorx, path, family) for path in paths) else 0)


main()
