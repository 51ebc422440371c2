#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Reads and writes generated MIF/MID pairs with this library, GDAL and a bare loop; prints the ratios.

    benchmarks/mif.py [--megabytes N] [--objects N] [--large]

Times are user CPU times of whole processes, the least of five runs each; instructions are callgrind's;
memory is the peak of the process. GDAL where it has not been built, and valgrind where it is missing,
are left out and named. The programs that write generate the objects too: the second ratio of writing is
without the time that this takes. --large reads a pair of 1 GiB beside one of 10 MiB too.
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
    child = subprocess.Popen([program(name), *arguments], stdout=subprocess.DEVNULL,
                             stderr=subprocess.DEVNULL)
    _, status, usage = os.wait4(child.pid, 0)
    if status != 0:
        sys.exit(f"{name} failed")
    return usage.ru_utime, usage.ru_maxrss


def measure(name, *arguments):
    runs = [run(name, *arguments) for _ in range(5)]
    return min(r[0] for r in runs), max(r[1] for r in runs)


def instructions(name, *arguments):
    done = subprocess.run(["valgrind", "--tool=callgrind", "--callgrind-out-file=/dev/null",
                           program(name), *arguments], capture_output=True, text=True)
    return int(re.search(r"Collected : (\d+)", done.stderr).group(1))


def make(path, megabytes):
    subprocess.run([program("make_mif_survey"), path, str(megabytes)], check=True)


def report_reading(folder, options, has_gdal):
    path = os.path.join(folder, "survey")
    make(path, options.megabytes)
    ours, peak = measure("mif_read_velor", path)
    print(f"reading {options.megabytes} MB: {ours:.3f} s, peak {peak / 1024:.0f} MiB")
    if has_gdal:
        theirs = measure("mif_read_gdal", path)[0]
        print(f"  GDAL time : ours                 {theirs / ours:.1f}")
    print(f"  our time : bare loop             {ours / measure('mif_read_bare', path)[0]:.2f}")
    if shutil.which("valgrind"):
        make(path, min(options.megabytes, 20))
        counted = [instructions("mif_read_" + name, path) for name in ("velor", "bare")]
        print(f"  our instructions : bare loop     {counted[0] / counted[1]:.2f}")
    else:
        print("  valgrind is missing, instructions left out")
    if options.large:
        for megabytes in (10, 1024):
            make(path, megabytes)
            print(f"  peak for {megabytes} MiB: {run('mif_read_velor', path)[1] / 1024:.1f} MiB")


def report_writing(folder, options, has_gdal):
    count = str(options.objects)
    ours, peak = measure("mif_write_velor", folder, count)
    generating = measure("mif_write_none", folder, count)[0]
    print(f"writing {count} objects: {ours:.3f} s, peak {peak / 1024:.0f} MiB")
    if has_gdal:
        theirs = measure("mif_write_gdal", folder, count)[0]
        print(f"  GDAL time : ours                 {theirs / ours:.1f}")
        print(f"  the same without generating      {(theirs - generating) / (ours - generating):.1f}")


def main():
    options = argparse.ArgumentParser()
    options.add_argument("--megabytes", type=float, default=100)
    options.add_argument("--objects", type=int, default=200000)
    options.add_argument("--large", action="store_true")
    options = options.parse_args()
    if not os.path.exists(program("mif_read_velor")):
        sys.exit("build the benchmarks first: cmake --preset bench && cmake --build build/bench")
    has_gdal = os.path.exists(program("mif_read_gdal"))
    if not has_gdal:
        print("GDAL: not built, left out")
    with tempfile.TemporaryDirectory() as folder:
        report_reading(folder, options, has_gdal)
        report_writing(folder, options, has_gdal)


if __name__ == "__main__":
    main()
