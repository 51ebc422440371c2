#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""check-mif-convert.py CHECK VELORX EXAMPLES [CORPUS]: converts with velorx and looks at the result with GDAL.

Exit code 77 where GDAL, or what else a check needs, is not installed.
"""
import collections
import importlib.util
import json
import math
import os
import re
import shutil
import subprocess
import sys
import tempfile

TOLERANCE = 2e-6  # of coordinates that are written with six decimals
velorx, examples, corpus = (sys.argv[2:] + [""])[:3]
corpus = os.environ.get("VELOREXCHANGE_CORPUS", corpus)
plan = os.path.join(examples, "data", "survey-plan.dxf")
folder = tempfile.mkdtemp()


def skip(reason):
    print("skipped:", reason)
    sys.exit(77)


def expect(condition, *words):
    if not condition:
        print("FAILED:", *words)
        sys.exit(1)


def path(name):
    return os.path.join(folder, name)


def convert(*arguments):
    """The report of a run, as JSON would have it."""
    report = path("report.json")
    done = subprocess.run([velorx, "convert", "--force", "--quiet", "--report", report, *arguments],
                          capture_output=True, text=True)
    expect(done.returncode == 0, "velorx convert", *arguments, done.stderr)
    with open(report, encoding="utf-8") as file:
        return json.load(file)


def features(name, style=False):
    """What GDAL sees in a file: layer or table name, type, coordinates, attributes."""
    base = os.path.splitext(os.path.basename(name))[0]
    query = ["-sql", f'SELECT *, OGR_STYLE AS STYLE FROM "{base}"'] if style else []
    out = path("seen.json")
    if os.path.exists(out):
        os.remove(out)
    done = subprocess.run(["ogr2ogr", "-f", "GeoJSON", out, name, "-lco", "RFC7946=NO",
                           "-lco", "COORDINATE_PRECISION=10", *query], capture_output=True, text=True)
    expect(done.returncode == 0, "ogr2ogr", name, done.stderr)
    with open(out, encoding="utf-8") as file:
        return json.load(file)["features"]


def rounded(value):
    """Coordinates to the tolerance, as something that can be looked up."""
    if isinstance(value, (list, tuple)):
        return tuple(rounded(v) for v in value[:2] if not isinstance(v, (list, tuple))) \
            or tuple(rounded(v) for v in value)
    return round(value, 5)


def vertices(geometry):
    """The set of vertices of any geometry."""
    def walk(value):
        if isinstance(value[0], (int, float)):
            yield rounded(value)
        else:
            for part in value:
                yield from walk(part)
    return frozenset(walk(geometry["coordinates"]))


def area(ring):
    return sum(a[0] * b[1] - b[0] * a[1] for a, b in zip(ring, ring[1:] + ring[:1])) / 2


def polygon_area(geometry):
    polygons = geometry["coordinates"]
    polygons = [polygons] if geometry["type"] == "Polygon" else polygons
    return sum(abs(area(p[0])) - sum(abs(area(r)) for r in p[1:]) for p in polygons)


def kind_of(feature):
    if "LABEL" in (feature["properties"].get("STYLE") or ""):
        return "Text"
    return {"Point": "Point", "LineString": "Pline", "Polygon": "Region",
            "MultiPolygon": "Region"}[feature["geometry"]["type"]]


def written(report):
    counts = collections.Counter()
    for kind in report["files"][0]["kinds"]:
        counts[kind["as"]] += kind["written"]
    return {kind: counts[kind] for kind in ("Point", "Pline", "Region", "Text") if counts[kind]}


def check_counts():
    """Every object that the report counts is in the pair, and a folder of pairs holds the same."""
    report = convert(plan, path("plan.mif"))
    seen = collections.Counter(kind_of(f) for f in features(path("plan.mif"), True))
    expect(seen == written(report), seen, written(report))
    by_layer = collections.Counter(f["properties"]["LAYER"] for f in features(path("plan.mif")))
    convert("--to", "mif", plan, path("pairs") + "/")
    pairs = {}
    for name in os.listdir(path("pairs")):
        if name.endswith(".mif"):
            pairs[name[:-4]] = len(features(os.path.join(path("pairs"), name)))
    expect(pairs == by_layer, pairs, by_layer)
    expect(len(pairs) > 10, pairs)


def check_coordinates():
    """Points, lines and polylines of the drawing stand in their layer with the same vertices."""
    convert(plan, path("plan.mif"))
    seen = collections.defaultdict(set)
    for feature in features(path("plan.mif")):
        seen[feature["properties"]["LAYER"]].add(vertices(feature["geometry"]))
    compared = collections.Counter()
    curved = 0
    for feature in features(plan):
        classes = feature["properties"]["SubClasses"].split(":")[-1]
        if classes not in ("AcDbPoint", "AcDbLine", "AcDbPolyline", "AcDbFace"):
            continue
        if vertices(feature["geometry"]) in seen[feature["properties"]["Layer"]]:
            compared[classes] += 1
        else:
            curved += 1  # arcs are cut into other chords
            expect(classes == "AcDbPolyline", feature)
    expect(compared["AcDbPoint"] == 61 and compared["AcDbLine"] == 13, compared)
    expect(compared["AcDbPolyline"] >= 35 and curved <= 6, compared, curved)


def check_texts():
    """Texts are in their layers, Cyrillic and all, and where they stood."""
    convert(plan, path("plan.mif"))
    seen = collections.Counter()
    places = collections.defaultdict(list)
    for feature in features(path("plan.mif"), True):
        style = feature["properties"]["STYLE"] or ""
        label = re.search(r'LABEL\(t:"(.*?)",a:(-?[\d.]+),s:([\d.]+)g.*?p:(\d+)', style, re.DOTALL)
        if label:
            key = (feature["properties"]["LAYER"], label[1])
            seen[key] += 1
            if float(label[2]) == 0 and label[4] == "1":
                places[key].append(rounded(feature["geometry"]["coordinates"]))
    wanted = [f for f in features(plan) if f["properties"]["SubClasses"].endswith(":AcDbText")
              and not f["properties"].get("PaperSpace")]
    at_place = 0
    for feature in wanted:
        key = (feature["properties"]["Layer"], feature["properties"]["Text"])
        expect(seen[key] > 0, key)
        at_place += rounded(feature["geometry"]["coordinates"]) in places[key]
    expect(len(wanted) > 30 and at_place > 10, len(wanted), at_place)
    expect(any(ord(c) > 1000 for _, text in seen for c in text), "no Cyrillic")


def check_attributes():
    """Attributes of inserts are columns."""
    if importlib.util.find_spec("ezdxf") is None:
        skip("python3-ezdxf is not installed")
    import ezdxf
    wanted = set()
    for insert in ezdxf.readfile(plan).modelspace().query("INSERT"):
        for attribute in insert.attribs:
            wanted.add((attribute.dxf.tag, attribute.dxf.text))
    convert(plan, path("plan.mif"))
    seen = set()
    for feature in features(path("plan.mif")):
        seen.update((k, v) for k, v in feature["properties"].items() if v and k != "LAYER")
    expect(seen == wanted, seen ^ wanted)
    expect(len(wanted) > 50, len(wanted))


SHAPES = [
    ("POINT (1 2)", "Дом; 5", 1, 1.5),
    ("LINESTRING (1 2,3 4.25,-5 6)", 'say "a"', -2, 0.123456789),
    ("POLYGON ((0 0,40 0,40 30,0 30,0 0),(10 10,20 10,20 15,10 10))", "hole", 3, 1e6),
    ("MULTIPOLYGON (((0 0,9 0,9 9,0 9,0 0),(3 3,6 3,6 6,3 6,3 3)),((4 4,5 4,5 5,4 5,4 4)),"
     "((20 0,29 0,29 9,20 0)))", "island", 4, 0),
]


def make_pair(name):
    with open(path("shapes.csv"), "w", encoding="utf-8") as file:
        file.write("WKT,name,n,d\n")
        for shape, text, n, d in SHAPES:
            quoted = text.replace('"', '""')
            file.write(f'"{shape}","{quoted}",{n},{d!r}\n')
    subprocess.run(["ogr2ogr", "-f", "MapInfo File", "-dsco", "FORMAT=MIF", "-lco", "ENCODING=CP1251",
                    "-oo", "AUTODETECT_TYPE=YES", "-oo", "KEEP_GEOM_COLUMNS=NO", name,
                    path("shapes.csv")], check=True, capture_output=True)


def as_read(value):
    """A text as the library's reader has it: without quotes and runs of blanks."""
    return " ".join(value.replace('"', "").split()) if isinstance(value, str) else value


def same_features(one, other):
    """Whether two files hold the same in the same order, as far as GDAL sees and the library reads."""
    ones, others = features(one), features(other)
    expect(len(ones) == len(others), one, len(ones), len(others))
    for a, b in zip(ones, others):
        expect(vertices(a["geometry"]) == vertices(b["geometry"]), a, b)
        if "Polygon" in a["geometry"]["type"]:
            expect(math.isclose(polygon_area(a["geometry"]), polygon_area(b["geometry"]),
                                rel_tol=1e-9, abs_tol=TOLERANCE), a, b)
        for key, value in a["properties"].items():
            other_value = b["properties"].get(key)
            if isinstance(value, float):
                expect(math.isclose(value, other_value or 0.0, rel_tol=1e-6), key, value, other_value)
            else:
                expect((as_read(value) or None) == (other_value or None), key, value, other_value)
    return len(ones)


def check_gdal_pair():
    """A pair that GDAL wrote comes out as it was."""
    make_pair(path("shapes.mif"))
    convert(path("shapes.mif"), path("again.mif"))
    expect(same_features(path("shapes.mif"), path("again.mif")) == len(SHAPES))


def check_areas():
    """Holes stay holes and islands islands: areas are valid, and as large as they were."""
    make_pair(path("shapes.mif"))
    convert(path("shapes.mif"), path("again.mif"))
    areas = [polygon_area(f["geometry"]) for f in features(path("again.mif"))[2:]]
    expect(areas == [40 * 30 - 25, 81 - 9 + 1 + 40.5], areas)
    done = subprocess.run(["ogrinfo", "-q", path("again.mif"), "-dialect", "sqlite", "-sql",
                           "SELECT min(st_isvalid(geometry)) AS valid FROM again"],
                          capture_output=True, text=True)
    if "no such function" in done.stdout + done.stderr:
        skip("GDAL has no spatial functions")
    expect("= 1" in done.stdout, done.stdout, done.stderr)


def check_chord():
    """A circle is as near to round as --chord asks for."""
    with open(path("round.mif"), "w", encoding="ascii") as file:
        file.write("Version 300\nColumns 0\nData\nEllipse 0 0 200 200\n")
    open(path("round.mid"), "w", encoding="ascii").close()
    sizes = []
    for chord in (10, 1, 0.1, 0.01):
        convert("--chord", str(chord), path("round.mif"), path("chords.mif"))
        ring = features(path("chords.mif"))[0]["geometry"]["coordinates"][0]
        sag = max(100 - math.hypot((a[0] + b[0]) / 2 - 100, (a[1] + b[1]) / 2 - 100)
                  for a, b in zip(ring, ring[1:]))
        expect(chord / 4 < sag <= chord * 1.001, chord, sag)
        sizes.append(len(ring))
    expect(sizes == sorted(set(sizes)), sizes)


def check_corpus():
    """Tables of other programs come out as they were."""
    tables = {"gdal/small": 2, "gdal/win1251": 3, "gdal/nomid": 2, "gdal/proj_34": 1,
              "mapinfo.js/example": 17}
    if not os.path.isdir(os.path.join(corpus, "mif")):
        skip("no corpus")
    for table, count in tables.items():
        source = os.path.join(corpus, "mif", table + ".mif")
        target = path(os.path.basename(table) + ".mif")
        convert("--precision", "10", source, target)
        expect(same_features(source, target) == count, table)


def check_to_drawing():
    """Points, lines and outlines of a table stand in the drawing where GDAL reads them in the table."""
    make_pair(path("shapes.mif"))
    convert(path("shapes.mif"), path("shapes.dxf"))
    seen = [f for f in features(path("shapes.dxf")) if f["properties"]["Layer"] == "shapes"]
    table = features(path("shapes.mif"))
    for feature in table[:2]:
        expect(vertices(feature["geometry"]) in [vertices(s["geometry"]) for s in seen], feature)
    for feature in table[2:]:
        polygons = feature["geometry"]["coordinates"]
        for polygon in [polygons] if feature["geometry"]["type"] == "Polygon" else polygons:
            for ring in polygon:
                outline = vertices({"coordinates": ring})
                expect(outline in [vertices(s["geometry"]) for s in seen], ring)
    expect(len(seen) == 8, len(seen))


def check_there_and_back():
    """A drawing that became a table, a drawing and a table again is the same table."""
    convert(plan, path("one.mif"))
    convert(path("one.mif"), path("one.dxf"))
    convert(path("one.dxf"), path("two.mif"))
    expect(same_features(path("one.mif"), path("two.mif")) == 424)
    labels = [collections.Counter(re.sub(r",c:#\w+", "", f["properties"]["STYLE"])
                                  for f in features(path(name), True)
                                  if "LABEL" in (f["properties"]["STYLE"] or ""))
              for name in ("one.mif", "two.mif")]
    expect(labels[0] == labels[1] and len(labels[0]) > 90, labels[0] - labels[1], len(labels[0]))
    make_pair(path("shapes.mif"))
    convert(path("shapes.mif"), path("shapes.dxf"))
    convert(path("shapes.dxf"), path("again.mif"))
    table, again = features(path("shapes.mif")), features(path("again.mif"))
    expect([vertices(f["geometry"]) for f in table] == [vertices(f["geometry"]) for f in again])
    expect([f["properties"]["name"] for f in again] == ["Дом; 5", "say a", "hole", "island"], again)
    expect([f["properties"]["n"] for f in again] == ["1", "-2", "3", "4"], again)
    areas = [[polygon_area(f["geometry"]) for f in fs[2:]] for fs in (table, again)]
    expect(areas[0] == areas[1], areas)


def check_drawings():
    """Drawings of other programs open in GDAL with the objects that the report counts."""
    if not os.path.isdir(os.path.join(corpus, "dxf")):
        skip("no corpus")
    opened = 0
    for parent, _, names in os.walk(os.path.join(corpus, "dxf")):
        for name in sorted(names):
            done = subprocess.run([velorx, "convert", "--force", "--quiet", "--report",
                                   path("report.json"), os.path.join(parent, name),
                                   path("drawing.mif")], capture_output=True, text=True)
            if done.returncode != 0:
                expect("like a text drawing" in done.stderr or "ends inside" in done.stderr, name, done.stderr)
                continue
            with open(path("report.json"), encoding="utf-8") as file:
                counts = written(json.load(file))
            seen = collections.Counter(kind_of(f) for f in features(path("drawing.mif"), True))
            expect(seen == counts, name, seen, counts)
            opened += 1
    expect(opened > 150, opened)


CHECKS = {name[6:].replace("_", "-"): check for name, check in list(globals().items())
          if name.startswith("check_")}

if __name__ == "__main__":
    if shutil.which("ogr2ogr") is None:
        skip("ogr2ogr (gdal-bin) is not installed")
    try:
        CHECKS[sys.argv[1]]()
    finally:
        shutil.rmtree(folder)
