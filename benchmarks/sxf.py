#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Reads and writes a generated map in both forms, beside GDAL and bare loops, and prints ratios.

    benchmarks/sxf.py [--megabytes N] [--large]

Times are user CPU times of whole processes, the least of five runs each; those of writing leave out
what making the objects costs. Instructions are callgrind's; memory is the peak of the process. Peers
that have not been built, and valgrind where it is missing, are left out and named. --large prints the peaks
for a map of 10 MB beside one of 1 GB too.
"""
import argparse
import os
import re
import shutil
import subprocess
import sys
import tempfile

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
PROGRAMS = os.path.join(ROOT, "build", "bench", "benchmarks")


def program(name):
    return os.path.join(PROGRAMS, name)


def run(name, *arguments):
    """User seconds and peak KiB of one process."""
    child = subprocess.Popen([program(name), *arguments], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    _, status, usage = os.wait4(child.pid, 0)
    child.returncode = status
    if status != 0:
        sys.exit(f"{name} {' '.join(arguments)} failed")
    return usage.ru_utime, usage.ru_maxrss


def measure(name, *arguments):
    runs = [run(name, *arguments) for _ in range(5)]
    return min(r[0] for r in runs), max(r[1] for r in runs)


def instructions(name, *arguments):
    if not shutil.which("valgrind"):
        return None
    done = subprocess.run(["valgrind", "--tool=callgrind", "--callgrind-out-file=/dev/null", program(name),
                           *arguments], capture_output=True, text=True)
    found = re.search(r"Collected : (\d+)", done.stderr)
    return int(found.group(1)) if found else None


def ratio(value, base):
    return "-" if not value or not base else f"{value / base:.2f}"


def row(what, ours, other, limit):
    print(f"| {what} | {ratio(ours, other)} | {limit} |")


def read(folder, megabytes):
    binary, text = os.path.join(folder, "map.sxf"), os.path.join(folder, "map.txt")
    run("sxf_write_velor", "binary", str(megabytes), binary)
    run("sxf_write_velor", "text", str(megabytes), text)
    ours = measure("sxf_read_velor", binary)
    if os.path.exists(program("sxf_read_gdal")):
        row("reading binary: GDAL's user time : ours", measure("sxf_read_gdal", binary)[0], ours[0], ">= 12")
    else:
        print("| GDAL: not built, left out | - | - |")
    row("reading binary: our user time : bare loop", ours[0], measure("sxf_read_bare", binary)[0], "")
    ours_text = measure("sxf_read_velor", text)
    row("reading text: our user time : bare loop", ours_text[0], measure("sxf_read_text_bare", text)[0], "<= 2")
    small = min(megabytes, 20)
    run("sxf_write_velor", "binary", str(small), binary)
    run("sxf_write_velor", "text", str(small), text)
    row("reading binary: our instructions : bare loop", instructions("sxf_read_velor", binary),
        instructions("sxf_read_bare", binary), "<= 5")
    row("reading text: our instructions : bare loop", instructions("sxf_read_velor", text),
        instructions("sxf_read_text_bare", text), "<= 2")


def write(folder, megabytes):
    target = os.path.join(folder, "out")
    size = str(megabytes)
    objects = measure("sxf_write_velor", "nothing", size, target)[0]
    for form, limit in (("binary", "<= 6"), ("text", "<= 0.8")):
        ours = measure("sxf_write_velor", form, size, target)[0] - objects
        bare = measure("sxf_write_bare", form, size, target)[0] - objects
        row(f"writing {form}: our user time : bare loop", ours, bare, limit)
    small = str(min(megabytes, 20))
    objects = instructions("sxf_write_velor", "nothing", small, target)
    for form, limit in (("binary", "<= 6"), ("text", "<= 0.8")):
        ours = instructions("sxf_write_velor", form, small, target)
        bare = instructions("sxf_write_bare", form, small, target)
        if ours and bare:
            row(f"writing {form}: our instructions : bare loop", ours - objects, bare - objects, limit)


def peaks(folder):
    target = os.path.join(folder, "large")
    for megabytes in ("10", "1000"):
        for form in ("binary", "text"):
            written = run("sxf_write_velor", form, megabytes, target)[1]
            got = run("sxf_read_velor", target)[1]
            print(f"peak for {megabytes} MB, {form}: writing {written / 1024:.1f} MiB, reading {got / 1024:.1f} MiB")
            os.remove(target)


def main():
    options = argparse.ArgumentParser()
    options.add_argument("--megabytes", type=float, default=100)
    options.add_argument("--large", action="store_true")
    options = options.parse_args()
    if not os.path.exists(program("sxf_read_velor")):
        sys.exit("build the benchmarks first: cmake --preset bench && cmake --build build/bench")
    with tempfile.TemporaryDirectory() as folder:
        print("| measure | ratio | aim |\n|---|---|---|")
        read(folder, options.megabytes)
        write(folder, options.megabytes)
        if options.large:
            peaks(folder)


if __name__ == "__main__":
    main()
