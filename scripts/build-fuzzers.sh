#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Builds the libFuzzer harnesses into build/fuzz. Exit code 1 where clang or its runtime is missing.
set -euo pipefail
cd "$(dirname "$0")/.."
command -v clang++ >/dev/null || exit 1
probe=$(mktemp -d)
trap 'rm -rf "$probe"' EXIT
echo 'extern "C" int LLVMFuzzerTestOneInput(const unsigned char*, unsigned long) { return 0; }' > "$probe/p.cpp"
clang++ -fsanitize=fuzzer,address,undefined "$probe/p.cpp" -o "$probe/p" 2>/dev/null || exit 1
cmake --preset fuzz
cmake --build build/fuzz --parallel "$(nproc)"
