#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Everything that must pass: format, both compilers, tests, sanitizers, clang-tidy.
set -euo pipefail
cd "$(dirname "$0")/.."

sources() { git ls-files '*.h' '*.cpp' '*.c'; }

echo "check: format"
sources | xargs clang-format --dry-run -Werror

for preset in dev clang asan; do
    echo "check: $preset"
    cmake --preset "$preset" >/dev/null
    cmake --build "build/$preset" --parallel "$(nproc)"
    ctest --test-dir "build/$preset" --parallel "$(nproc)" --output-on-failure
done

if command -v clang-tidy >/dev/null; then
    echo "check: clang-tidy"
    cmake --preset dev -DCMAKE_EXPORT_COMPILE_COMMANDS=ON >/dev/null
    git ls-files 'VelorExchange/*.cpp' | xargs -P "$(nproc)" -n 4 clang-tidy -p build/dev --quiet
else
    echo "check: clang-tidy is missing, skipped"
fi
echo "check: all passed"
