#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Reads generated drawings with this library and its peers, and prints ratios as a table.

    benchmarks/dxf-read.py [--megabytes N] [--large]

Times are user CPU times of whole processes, the least of five runs each; instructions are
callgrind's; memory is the peak of the process. Peers that have not been built, and valgrind where it is
missing, are left out and named. --large reads a drawing of 1 GiB beside one of 10 MiB too.
"""
import argparse
import os
import re
import resource
import shutil
import subprocess
import sys
import tempfile

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
PROGRAMS = os.path.join(ROOT, "build", "bench", "benchmarks")
FORMS = [
    ("CR LF, 40 layers", ["crlf", "40", "mix"]),
    ("LF", ["lf", "40", "mix"]),
    ("CR alone", ["cr", "40", "mix"]),
    ("5,000 layers", ["crlf", "5000", "mix"]),
    ("one polyline", ["crlf", "40", "polyline"]),
]


def program(name):
    return os.path.join(PROGRAMS, name)


def make(path, megabytes, form):
    with open(path, "wb") as file:
        subprocess.run([program("make_survey_drawing"), str(megabytes), *form], stdout=file, check=True)


def run(name, path):
    """User seconds, peak KiB and output of one process."""
    child = subprocess.Popen([program(name), path], stdout=subprocess.PIPE)
    output = child.stdout.read()
    _, status, usage = os.wait4(child.pid, 0)
    if status != 0:
        return None
    return usage.ru_utime, usage.ru_maxrss, output


def measure(name, path, times=5):
    runs = [run(name, path) for _ in range(times)]
    if None in runs:
        return None
    return min(r[0] for r in runs), max(r[1] for r in runs), runs[0][2]


def instructions(name, path):
    if not shutil.which("valgrind"):
        return None
    done = subprocess.run(["valgrind", "--tool=callgrind", "--callgrind-out-file=/dev/null", program(name), path],
                          capture_output=True, text=True)
    found = re.search(r"Collected : (\d+)", done.stderr)
    return int(found.group(1)) if found else None


def ratio(value, base, digits=1):
    return "-" if not value or not base else f"{value / base:.{digits}f}"


def main():
    options = argparse.ArgumentParser()
    options.add_argument("--megabytes", type=float, default=100)
    options.add_argument("--large", action="store_true")
    options = options.parse_args()
    if not os.path.exists(program("dxf_read_velor")):
        sys.exit("build the benchmarks first: cmake --preset bench && cmake --build build/bench")
    peers = [p for p in ("gdal", "dxflib") if os.path.exists(program("dxf_read_" + p))]
    for missing in {"gdal", "dxflib"} - set(peers):
        print(f"{missing}: not built, left out")
    with tempfile.TemporaryDirectory() as folder:
        path = os.path.join(folder, "drawing.dxf")
        print("| drawing | " + " | ".join(f"{p} time : ours" for p in peers)
              + " | our time : bare loop | our instructions : bare loop | our peak, MiB |")
        print("|---" * (len(peers) + 4) + "|")
        first = None
        for title, form in FORMS:
            make(path, options.megabytes, form)
            ours = measure("dxf_read_velor", path)
            cells = []
            for peer in peers:
                theirs = measure("dxf_read_" + peer, path, 2)
                read_all = theirs is not None and theirs[0] > ours[0] / 4
                cells.append(ratio(theirs[0], ours[0]) if read_all else "reads nothing")
            bare = measure("dxf_read_bare", path) if form[0] != "cr" else None
            make(path, min(options.megabytes, 20), form)
            counted = instructions("dxf_read_velor", path), form[0] != "cr" and instructions("dxf_read_bare", path)
            cells.append(ratio(ours[0], bare and bare[0], 2))
            cells.append(ratio(*counted, 2))
            first = first or ours[0]
            print(f"| {title} | " + " | ".join(cells) + f" | {ours[1] / 1024:.0f} |")
        if options.large:
            for megabytes in (10, 1024):
                make(path, megabytes, FORMS[0][1])
                print(f"peak memory for {megabytes} MiB: {run('dxf_read_velor', path)[1] / 1024:.1f} MiB")


if __name__ == "__main__":
    main()
