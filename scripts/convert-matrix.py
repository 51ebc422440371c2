#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Converts files between all formats of velorx and prints, as Markdown, how many objects of each kind went in
and came out, what failed, and what independent programs say of the results.

    convert-matrix.py [--velorx PROGRAM] [--sample N] [FILE_OR_FOLDER...]

Each file goes into the three other formats, and from each result into the other three, which makes twelve ways
whatever the file is. Without arguments the demo drawing is converted, and the real files that
VELOREXCHANGE_CORPUS names. Results are opened by ogrinfo (DXF, MIF, SXF) and audited by ezdxf (DXF) where these
are installed, and by `velorx check`. The exit code is 1 if a conversion failed that should not, or a result does not open.
"""
import argparse
import collections
import json
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
from concurrent.futures import ThreadPoolExecutor

ROOT = pathlib.Path(__file__).resolve().parent.parent
FORMATS = ("dxf", "mif", "sxf", "txt")
NAMES = {"dxf": "DXF", "mif": "MIF", "sxf": "SXF", "txt": "SXF text"}
AUDIT = """
import sys
import ezdxf
drawing = ezdxf.readfile(sys.argv[1])
audit = drawing.audit()
for entry in audit.errors:
    print(entry.code, entry.message)
sys.exit(1 if audit.errors else 0)
"""

# A line of the export report in its own form, with the number of objects of one kind.
LOGGED = re.compile(r"^Записаны в файл .* - (\d+)$", re.M)
# Refusals that follow from the source and are no failure.
REFUSALS = re.compile("|".join((
    "there is nothing in it that a map could hold",  # SXF files are made of objects only
    r"it does not start like a text drawing",
    "the header cannot be read",  # a table with columns of types that are not read
)))

# What ogrinfo sees beside the objects of the report: maps have a frame.
ADDED = {".mif": 0, ".sxf": 1}

Result = collections.namedtuple("Result", "source way target report error seen written")


def run(*command):
    return subprocess.run(command, capture_output=True, text=True, errors="replace", timeout=600)


class Judge:
    """Programs from outside."""

    def __init__(self):
        self.ogrinfo = shutil.which("ogrinfo")
        python = "/usr/bin/python3"
        self.ezdxf = python if run(python, "-c", "import ezdxf").returncode == 0 else None

    def opened(self, path):
        """What they say of a file: a list of complaints, and how many features ogrinfo sees (None: no word)."""
        complaints = []
        seen = None
        if self.ogrinfo and path.suffix != ".txt":
            result = run(self.ogrinfo, "-ro", "-so", "-al", str(path))
            counts = re.findall(r"Feature Count: (\d+)", result.stdout)
            seen = sum(map(int, counts))
            if result.returncode != 0 or not counts:
                complaints.append("ogrinfo: " + (result.stderr.strip().splitlines() or ["no layer"])[0])
        if self.ezdxf and path.suffix == ".dxf":
            result = run(self.ezdxf, "-c", AUDIT, str(path))
            if result.returncode != 0:
                lines = result.stdout.strip().splitlines() or result.stderr.strip().splitlines() or ["?"]
                complaints.append("ezdxf: " + lines[0])
        return complaints, seen


class Matrix:
    def __init__(self, program, folder):
        self.program = program
        self.folder = pathlib.Path(folder)
        self.judge = Judge()

    def convert(self, source, name, target):
        report = target.with_suffix(".json")
        result = run(str(self.program), "convert", str(source), str(target), "--quiet", "--report", str(report))
        told = json.loads(report.read_text(encoding="utf-8"))["files"][0] if report.exists() else {}
        error = told.get("error") or ("" if result.returncode == 0 else result.stderr.strip() or "crashed")
        complaints, seen = ([], None) if error else self.judge.opened(target)
        if not error:
            check = run(str(self.program), "check", str(target))
            if check.returncode != 0:
                complaints.append("check: " + " ".join(check.stdout.split("\n", 1)[-1].split())[:200])
        written = sum(map(int, LOGGED.findall(told.get("log", ""))))
        expected = written + ADDED.get(target.suffix, 0)
        if target.suffix in ADDED and seen is not None and written and seen != expected:
            complaints.append(f"ogrinfo sees {seen} objects of {expected}")
        way = (source.suffix[1:].lower(), target.suffix[1:])
        return Result(name, way, target, told, error or "; ".join(complaints), seen, written)

    def all_ways(self, number, source, name):
        folder = self.folder / str(number)
        first = source.suffix[1:].lower()
        results = []
        for target in FORMATS:
            if target == first:
                continue
            place = folder / target
            place.mkdir(parents=True)
            middle = place / f"map.{target}"
            results.append(self.convert(source, name, middle))
            for further in FORMATS if middle.exists() else ():
                if further != target:
                    (place / further).mkdir()
                    results.append(self.convert(middle, name, place / further / f"map.{further}"))
        shutil.rmtree(folder)
        return results


def gather(paths):
    for path in paths:
        if path.is_dir():
            yield from (entry for entry in sorted(path.rglob("*")) if entry.suffix[1:].lower() in FORMATS[:3])
        else:
            yield path


def way_name(way):
    return f"{NAMES[way[0]]} to {NAMES[way[1]]}"


def print_kinds(title, results):
    """Counts in and out, per way and kind."""
    print(f"\n## {title}\n")
    for way in sorted({result.way for result in results}, key=lambda way: [FORMATS.index(part) for part in way]):
        rows = collections.OrderedDict()
        files = [result for result in results if result.way == way and not result.error]
        for result in files:
            for kind in result.report["kinds"]:
                row = rows.setdefault(kind["kind"], [0, 0, collections.Counter()])
                row[0] += kind["in_drawing"]
                row[1] += kind["in_blocks"]
                row[2][kind["as"]] += kind["written"]
        print(f"\n### {way_name(way)} ({len(files)} conversions)\n")
        print("| Kind | In | In blocks | Out | As |\n|---|---:|---:|---:|---|")
        for kind, (inside, blocks, out) in rows.items():
            names = ", ".join(f"{name} {count}" if len(out) > 1 else name for name, count in out.items() if name)
            print(f"| {kind} | {inside} | {blocks} | {sum(out.values())} | {names} |")


def print_losses(results):
    print("\n## What was lost or changed, over all conversions\n")
    print("| Way | Count | What |\n|---|---:|---|")
    losses = collections.Counter()
    for result in results:
        for loss in result.report.get("losses", []):
            losses[(way_name(result.way), re.sub(r"\d+", "N", loss["what"]))] += loss["count"]
    for (way, what), count in sorted(losses.items()):
        print(f"| {way} | {count} | {what} |")


def is_refused(result):
    return bool(REFUSALS.search(result.error))


def print_summary(results):
    print("\n## Conversions\n")
    print("| Way | Done | Refused | Failed | Opened by ogrinfo | Features seen | Objects reported |")
    print("|---|---:|---:|---:|---:|---:|---:|")
    ways = sorted({result.way for result in results}, key=lambda way: [FORMATS.index(part) for part in way])
    for way in ways:
        mine = [result for result in results if result.way == way]
        done = [result for result in mine if not result.error]
        seen = [result for result in done if result.seen is not None]
        refused = sum(map(is_refused, mine))
        print(f"| {way_name(way)} | {len(done)} | {refused} | {len(mine) - len(done) - refused} | {len(seen) or ''} "
              f"| {sum(result.seen for result in seen) if seen else ''} "
              f"| {sum(result.written for result in done)} |")


def print_refusals(results):
    files = collections.defaultdict(list)
    for result in filter(is_refused, results):
        files[(REFUSALS.search(result.error).group(), result.source)].append(way_name(result.way))
    print(f"\n## Refused ({len(files)} files)\n")
    for (reason, source), ways in sorted(files.items()):
        print(f"- {source}: {reason} ({', '.join(sorted(ways))})")


def print_failures(results):
    failures = [result for result in results if result.error and not is_refused(result)]
    print(f"\n## Failures ({len(failures)})\n")
    for result in failures:
        error = result.error.replace(str(result.target), "OUT")
        print(f"- {result.source}, {way_name(result.way)}: {error}")
    return failures


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n\n")[0])
    parser.add_argument("--velorx", type=pathlib.Path, default=ROOT / "build/dev/tools/velorx/velorx")
    parser.add_argument("--sample", type=int, default=1, help="take every N-th file of a folder")
    parser.add_argument("--threads", type=int, default=2)
    parser.add_argument("paths", nargs="*", type=pathlib.Path)
    options = parser.parse_args()
    demo = ROOT / "examples/data/survey-plan.dxf"
    corpus = os.environ.get("VELOREXCHANGE_CORPUS")
    paths = options.paths or [demo] + ([pathlib.Path(corpus)] if corpus else [])
    files = list(gather(paths))
    files = files[:1] + files[1::options.sample]
    base = pathlib.Path(corpus) if corpus else ROOT

    def name(path):
        return str(path.relative_to(base)) if path.is_relative_to(base) else path.name

    with tempfile.TemporaryDirectory() as folder, ThreadPoolExecutor(options.threads) as pool:
        matrix = Matrix(options.velorx, folder)
        jobs = [pool.submit(matrix.all_ways, i, path, name(path)) for i, path in enumerate(files)]
        results = [result for job in jobs for result in job.result()]
    print(f"# Conversions of {len(files)} files between {len(FORMATS)} formats")
    print_summary(results)
    failures = print_failures(results)
    print_refusals(results)
    if demo in files:
        print_kinds("The demo drawing", [result for result in results if result.source == name(demo)])
    print_kinds("All files", results)
    print_losses(results)
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
