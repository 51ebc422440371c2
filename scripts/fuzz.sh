#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Runs one libFuzzer harness: scripts/fuzz.sh [--seconds N] NAME (without --seconds: until stopped).
# It starts from the test data and keeps what it learns in build/fuzz/corpus/NAME; an input that
# breaks the library is left in build/fuzz/finds. Exit code 77 where the harness has not been built.
set -euo pipefail
cd "$(dirname "$0")/.."
limit=()
if [ "${1:-}" = --seconds ]; then
    limit=("-max_total_time=$2")
    shift 2
fi
name=$1
binary=build/fuzz/fuzz/$name
if [ ! -x "$binary" ]; then
    echo "fuzz: $binary is missing (clang and its sanitizer runtime are needed, see scripts/build-fuzzers.sh)"
    exit 77
fi
corpus=build/fuzz/corpus/$name
mkdir -p "$corpus" build/fuzz/finds
# Seeds: the folders below tests/data that the harness is registered with.
mapfile -t seeds < <(sed -n "s/^velorexchange_fuzzer($name \(.*\))$/\1/p" fuzz/CMakeLists.txt | tr ' ' '\n')
folders=()
for seed in "${seeds[@]}"; do
    [ -d "tests/$seed" ] && folders+=("tests/$seed")
done
dictionary=()
[ -f "fuzz/$name.dict" ] && dictionary=("-dict=fuzz/$name.dict")
# Temporary files of the library stay in memory: a run is not to wait for the disk.
[ -w /dev/shm ] && export TMPDIR=/dev/shm
exec "$binary" "${limit[@]}" "${dictionary[@]}" -timeout=25 -rss_limit_mb=2048 -max_len=65536 -print_final_stats=1 \
    -artifact_prefix=build/fuzz/finds/ "$corpus" "${folders[@]}"
