#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Writes the golden drawings below tests/golden/dxf anew from what the library writes now. Look at the
# change with git diff --text before you commit it.
set -euo pipefail
cd "$(dirname "$0")/.."
cmake --preset dev >/dev/null
cmake --build build/dev --target dxf_write_tests
VELOREXCHANGE_RENEW_GOLDEN=1 build/dev/tests/dxf/write/dxf_write_tests --gtest_filter='Golden.*'
git status --short tests/golden/dxf
