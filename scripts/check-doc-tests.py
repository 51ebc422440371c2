#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Says which tests named in docs/formats/*.md and docs/check.md do not exist. Exit code 1 if there is one."""
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
DEFINITION = re.compile(r"\bTEST(?:_F|_P)?\(\s*(\w+)\s*,\s*(\w+)\s*\)")
REGISTERED = re.compile(r"add_test\(\s*NAME\s+(\w+)\.(\w+)")
NAMED = re.compile(r"`([A-Z]\w*)\.([A-Z0-9]\w*)`")

known = set()
for path in [*ROOT.glob("tests/**/*.cpp"), *ROOT.glob("tests/**/CMakeLists.txt")]:
    text = path.read_text(encoding="utf-8")
    known.update(DEFINITION.findall(text))
    known.update(REGISTERED.findall(text))
suites = {suite for suite, _ in known}
missing = 0
named = 0
for page in [*sorted(ROOT.glob("docs/formats/*.md")), ROOT / "docs/check.md"]:
    for suite, name in NAMED.findall(page.read_text(encoding="utf-8")):
        if suite not in suites and not suite.endswith(("Test", "Parser", "Section")):
            continue  # a file or a member, not a test
        named += 1
        if (suite, name) not in known:
            print(f"{page.relative_to(ROOT)}: no test {suite}.{name}")
            missing += 1
print(f"{named} tests named, {missing} missing")
sys.exit(1 if missing or not named else 0)
