#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Writes a large drawing with this library and its peers, and prints ratios as a table.

    benchmarks/dxf-write.py [--objects N]

Times are user CPU times of whole processes, the least of several runs; instructions are callgrind's;
memory is the peak of the process, also for a tenth of the objects, which it does not depend on. Peers
that have not been built or installed, and valgrind where it is missing, are left out and named.
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
EZDXF = os.path.join(ROOT, "benchmarks", "DxfWriteEzdxf.py")
# Slow writers draw a part of the scene; their times are scaled up.
PARTS = {"velor": 1, "bare": 1, "gdal": 4, "dxflib": 4, "ezdxf": 40}


def command(name):
    if name == "ezdxf":
        return ["/usr/bin/python3", EZDXF]
    return [os.path.join(PROGRAMS, "dxf_write_" + name)]


def is_there(name):
    if name == "ezdxf":
        return subprocess.run(["/usr/bin/python3", "-c", "import ezdxf"], capture_output=True).returncode == 0
    return os.path.exists(command(name)[0])


def run(name, path, objects):
    """User seconds, peak KiB of one process."""
    child = subprocess.Popen([*command(name), path, str(objects)], stdout=subprocess.DEVNULL)
    _, status, usage = os.wait4(child.pid, 0)
    if status != 0:
        sys.exit(f"{name} failed")
    return usage.ru_utime, usage.ru_maxrss


def measure(name, path, objects, times):
    part = PARTS[name]
    runs = [run(name, path, objects // part) for _ in range(times)]
    return min(r[0] for r in runs) * part, max(r[1] for r in runs)


def instructions(name, path, objects):
    done = subprocess.run(["valgrind", "--tool=callgrind", "--callgrind-out-file=/dev/null",
                           *command(name), path, str(objects)], capture_output=True, text=True)
    return int(re.search(r"Collected : (\d+)", done.stderr).group(1))


def main():
    options = argparse.ArgumentParser()
    options.add_argument("--objects", type=int, default=2000000)
    objects = options.parse_args().objects
    if not is_there("velor"):
        sys.exit("build the benchmarks first: cmake --preset bench && cmake --build build/bench")
    with tempfile.TemporaryDirectory() as folder:
        path = os.path.join(folder, "drawing.dxf")
        time, peak = measure("velor", path, objects, 5)
        size = os.path.getsize(path) / 2**20
        print(f"{objects} objects, {size:.0f} MiB: {time:.2f} s of user time, peak {peak / 1024:.0f} MiB, "
              f"a tenth of them: {measure('velor', path, objects // 10, 1)[1] / 1024:.0f} MiB")
        print("| writer | user time | times ours |")
        print("|---|---|---|")
        for name in ("gdal", "dxflib", "ezdxf", "bare"):
            if not is_there(name):
                print(f"| {name} | not built or not installed | - |")
                continue
            theirs = measure(name, path, objects, 5 if name == "bare" else 2)[0]
            print(f"| {name} | {theirs:.2f} s | {theirs / time:.1f} |")
        if not shutil.which("valgrind"):
            print("valgrind is missing: no instructions")
            return
        few = objects // 20
        ours, bare = instructions("velor", path, few), instructions("bare", path, few)
        print(f"instructions for {few} objects: {ours / bare:.2f} of the bare loop of std::to_chars")


if __name__ == "__main__":
    main()
