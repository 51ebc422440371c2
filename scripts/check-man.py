#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""The manual pages name every command and every option that velorx --help names, and no other.

    check-man.py VELORX
"""

import pathlib
import re
import subprocess
import sys

pages = pathlib.Path(__file__).resolve().parent.parent / "docs/man"


def help_of(*arguments):
    return subprocess.run([sys.argv[1], *arguments, "--help"], check=True, capture_output=True, text=True).stdout


def options_of_help(text):
    return set(re.findall(r"(?:^ +|,)(--[a-z-]+)", text, re.M))


def options_of_page(name):
    path = pages / f"{name}.md"
    if not path.exists():
        return None
    text = path.read_text(encoding="utf-8")
    return set(re.findall(r"^\*\*[^:\n]*?\\(--[a-z-]+)\*\*", text, re.M))


def main():
    problems = []
    top = help_of()
    commands = re.findall(r"^  ([a-z]+) {2,}", top[top.index("Commands:"):], re.M)
    if not commands:
        sys.exit("man: velorx --help names no command")
    overview = (pages / "velorx.md").read_text(encoding="utf-8")
    for name, told in [("velorx", options_of_help(top))] + [
            (f"velorx-{command}", options_of_help(help_of(command))) for command in commands]:
        shown = options_of_page(name)
        if shown is None:
            problems.append(f"{name}: there is no page")
        elif shown != told:
            problems.append(f"{name}: only in the help {sorted(told - shown)}, only on the page {sorted(shown - told)}")
    for command in commands:
        if f"**velorx-{command}**(1)" not in overview:
            problems.append(f"velorx: does not name velorx-{command}(1)")
    print("\n".join(problems) or f"man: velorx and {len(commands)} commands agree with their pages")
    sys.exit(1 if problems else 0)


main()
