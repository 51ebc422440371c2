#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""judge_drawings.py [--all] [--corpus FOLDER] VELORX FOLDER...: converts drawings and has independent programs
judge what comes out. FOLDER is searched for *.dxf. Of the corpus, which the environment variable
VELOREXCHANGE_CORPUS can name as well and which may be missing, a sample is taken unless --all is given.

Each drawing is converted to both versions. Then
- ezdxf opens the result, its audit finds no error that the source does not have as well, and mends nothing but
  what docs/formats/dxf.md lists; it counts the same entities as the library does, and in the source as many
  as the report says were met;
- GDAL opens the result without an error and counts the same features.

Exit code 77 where ezdxf or GDAL is not installed."""
import argparse
import collections
import json
import logging
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

try:
    import ezdxf
    from ezdxf import recover
except ImportError:
    sys.exit(77)

SAMPLE = 12  # drawings

# What ezdxf mends in everything that the writer writes.
MENDED = [
    r"Fixed invalid owner handle in (DICTIONARY|MLINESTYLE|IMAGEDEF)\(#\)",
    r'Removed entry "ACAD_IMAGE_(DICT|VARS)" with invalid handle in DICTIONARY\(#\)',
    r"Deleted SEQEND\(#\) entity with invalid owner handle #None\.",
]

# Kinds that GDAL makes a feature of, by the last subclass of the entity.
GDAL_KINDS = {
    "AcDbPoint": "POINT", "AcDbLine": "LINE", "AcDbArc": "ARC", "AcDbPolyline": "LWPOLYLINE",
    "AcDb3dPolyline": "POLYLINE", "AcDbSpline": "SPLINE", "AcDbHatch": "HATCH", "AcDbFace": "3DFACE",
    "AcDbText": "TEXT", "AcDbMText": "MTEXT", "AcDbBlockReference": "INSERT",
}

# Sources that ezdxf reads otherwise: it joins columns of a text to one, and drops what has a handle that
# was used before or is no number, or has no handles at all.
ODD_SOURCES = {
    "arcs-as-splines.dxf", "block-insert-order.dxf", "duplicate_handles.dxf",
    "examples_dxf-mtext_columns_R2007.dxf", "integration_tests-data-mtext_columns_R2007.dxf",
    "mtext_columns_R2000.dxf", "mtext_framed_columns.dxf", "spline_closed.dxf",
}

# What the report says of entities that ezdxf counts and the library does not deliver.
UNREAD = ("lost in reading", "images without a file", "images of blocks", "leaders, drawn as")

# Kinds that are read as another one.
READ_AS = {"TRACE": "SOLID"}


def run(*command):
    result = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.PIPE, check=False)
    return (result.returncode, result.stdout.decode("utf-8", "replace"),
            result.stderr.decode("utf-8", "replace"))


def remarks(entries):
    return [re.sub(r"#[0-9a-fA-F]+", "#", entry.message) for entry in entries]


def counts(entities):
    kinds = (entity.dxftype() for entity in entities)
    return dict(collections.Counter(READ_AS.get(kind, kind) for kind in kinds))


def texts_of(drawing):
    """The texts of one line, with single blanks, which the writer puts for runs of them."""
    texts = (" ".join(text.dxf.text.split()) for text in drawing.modelspace().query("TEXT"))
    return collections.Counter(text for text in texts if text)


def open_source(path):
    """The source as ezdxf reads it, with what its audit finds; none where ezdxf cannot read it."""
    try:
        drawing, audit = recover.readfile(path)
        return drawing, set(remarks(audit.errors) + remarks(drawing.audit().errors))
    except Exception:  # whatever it is, the source is no measure then
        return None, set()


class Judge:
    def __init__(self, velorx, folder):
        self.velorx = velorx
        self.folder = pathlib.Path(folder)
        self.problems = 0
        self.judged = 0
        self.mended = collections.Counter()

    def complain(self, what):
        self.problems += 1
        print(f"{self.name}: {what}")

    def judge(self, path):
        source, known = open_source(path)
        for version in ("2000", "2004"):
            self.name = f"{path} in version {version}"
            target = self.folder / f"{version}.dxf"
            report = self.folder / "report.json"
            code, _, error = run(self.velorx, "convert", "--force", "--quiet", "--version", version,
                                 "--report", str(report), str(path), str(target))
            if code != 0:
                if "does not start like a text drawing" not in error:
                    self.complain(f"not converted: {error.strip()}")
                return
            told = json.loads(report.read_text(encoding="utf-8"))["files"][0]
            info = json.loads(run(self.velorx, "info", "--json", str(target))[1])
            self.judge_with_ezdxf(target, info, known)
            self.judge_with_gdal(target, info)
            if source is not None and path.name not in ODD_SOURCES:
                self.judge_source(source, target, told)
            self.judged += 1

    def judge_with_ezdxf(self, target, info, known):
        try:
            drawing = ezdxf.readfile(target)
            audit = drawing.audit()
        except Exception as error:  # whatever it is, ezdxf cannot read the drawing
            self.complain(f"ezdxf cannot read it: {error!r}")
            return
        for remark in remarks(audit.errors):
            if remark not in known:
                self.complain(f"ezdxf finds an error: {remark}")
        for remark in remarks(audit.fixes):
            self.mended[remark] += 1
            if not any(re.fullmatch(pattern, remark) for pattern in MENDED):
                self.complain(f"ezdxf mends: {remark}")
        blocks = [entity for block in drawing.blocks if not block.is_any_layout for entity in block]
        for where, seen, expected in (
                ("the drawing", counts(drawing.modelspace()), info["entities"]),
                ("blocks", counts(blocks), info["block_entities"])):
            if seen != expected:
                self.complain(f"in {where} ezdxf counts {seen}, the library {expected}")
        attributes = sum(len(insert.attribs) for insert in drawing.modelspace().query("INSERT"))
        attributes += sum(len(e.attribs) for e in blocks if e.dxftype() == "INSERT")
        if attributes != info["insert_attributes"]:
            self.complain(f"ezdxf counts {attributes} attributes, the library {info['insert_attributes']}")
        layers = {layer.dxf.name for layer in drawing.layers if layer.dxf.name != "Defpoints"}
        if layers != {layer["name"] for layer in info["layers"]}:
            self.complain(f"ezdxf sees the layers {sorted(layers)}")

    def judge_with_gdal(self, target, info):
        code, text, error = run("ogrinfo", "-ro", "-al", "--config", "DXF_INLINE_BLOCKS", "FALSE",
                                str(target))
        if code != 0 or "ERROR" in text + error:
            self.complain(f"GDAL cannot read it: {error[:300]}")
            return
        seen = collections.Counter()
        entities = text.split("\nLayer name: entities")[-1]
        for subclasses in re.findall(r"SubClasses \(String\) = (\S+)", entities):
            kind = GDAL_KINDS.get(subclasses.split(":")[-1])
            seen.update([kind] if kind else [])
        expected = {kind: count for kind, count in info["entities"].items() if kind in GDAL_KINDS.values()}
        if dict(seen) != expected:
            self.complain(f"GDAL counts {dict(seen)}, the library {expected}")

    # Attribute definitions outside blocks are left out.
    def judge_source(self, source, target, told):
        if any(mark in loss["what"] for loss in told["losses"] for mark in UNREAD):
            return
        met = {row["kind"]: row["in_drawing"] for row in told["kinds"] if row["in_drawing"]}
        kinds = {row["kind"] for row in told["kinds"]} - {"ATTDEF"}
        seen = {kind: count for kind, count in counts(source.modelspace()).items() if kind in kinds}
        if seen != met:
            self.complain(f"in the source ezdxf counts {seen}, the report {met}")
        if source.dxfversion >= "AC1021" or source.encoding == "cp1251":
            before, after = texts_of(source), texts_of(ezdxf.readfile(target))
            if before != after:
                self.complain(f"texts differ: {before - after} became {after - before}")


def drawings_of(folder):
    return sorted(pathlib.Path(folder).rglob("*.dxf"))


def sample_of(drawings):
    step = max(1.0, len(drawings) / SAMPLE)
    return [drawings[int(i * step)] for i in range(min(SAMPLE, len(drawings)))]


def main():
    logging.disable(logging.CRITICAL)
    parser = argparse.ArgumentParser()
    parser.add_argument("--all", action="store_true")
    parser.add_argument("--corpus", default="")
    parser.add_argument("velorx")
    parser.add_argument("folders", nargs="+")
    arguments = parser.parse_args()
    if shutil.which("ogrinfo") is None:
        sys.exit(77)
    drawings = [path for folder in arguments.folders for path in drawings_of(folder)]
    corpus = os.environ.get("VELOREXCHANGE_CORPUS", arguments.corpus)
    real = drawings_of(os.path.join(corpus, "dxf")) if corpus else []
    drawings += real if arguments.all else sample_of(real)
    with tempfile.TemporaryDirectory() as folder:
        judge = Judge(arguments.velorx, folder)
        for path in drawings:
            judge.judge(path)
    print(f"{judge.judged} conversions of {len(drawings)} drawings judged, {judge.problems} problems")
    for remark, count in judge.mended.most_common():
        print(f"mended {count} times: {remark}")
    sys.exit(1 if judge.problems or not judge.judged else 0)


if __name__ == "__main__":
    main()
