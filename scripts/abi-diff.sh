#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Compares the library's binary interface with that of an earlier commit, by abidiff.
#   abi-diff.sh [COMMIT]     the last tag unless told; fails if hosts built against it would break
set -euo pipefail
cd "$(dirname "$0")/.."
command -v abidiff >/dev/null || { echo "abi: abidiff (package abigail-tools) is missing" >&2; exit 77; }
earlier=${1:-$(git describe --tags --abbrev=0 2>/dev/null || true)}
[ -n "$earlier" ] || { echo "abi: there is no tag yet; name a commit" >&2; exit 77; }

work=$(mktemp -d)
trap 'git worktree remove --force "$work/earlier" 2>/dev/null; rm -rf "$work"' EXIT
git worktree add --quiet --detach "$work/earlier" "$earlier"

# Debug information tells the types; optimising would take time and change nothing.
build() {
    cmake -S "$1" -B "$2" -G Ninja -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS_DEBUG="-g -O0" \
        -DVELOREXCHANGE_BUILD_TESTS=OFF -DVELOREXCHANGE_BUILD_TOOLS=OFF >/dev/null
    cmake --build "$2" --target VelorExchange >/dev/null
}
build "$work/earlier" "$work/build-earlier"
build . "$work/build-now"

result=0
abidiff --no-unreferenced-symbols --suppressions scripts/abi-diff.suppr --headers-dir1 "$work/earlier/VelorExchange" --headers-dir2 VelorExchange \
    "$work/build-earlier/VelorExchange/libVelorExchange.so" \
    "$work/build-now/VelorExchange/libVelorExchange.so" || result=$?
# Bits of the result: 1 error, 2 usage, 4 a change, 8 one that breaks hosts.
if [ $((result & 11)) != 0 ]; then
    echo "abi: hosts built against $earlier would break (abidiff ended with $result)"
    exit 1
fi
echo "abi: hosts built against $earlier still run (abidiff ended with $result)"
