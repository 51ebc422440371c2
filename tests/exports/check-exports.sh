#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Compares the exported symbols of a shared library with symbols.txt.
#   check-exports.sh LIBRARY            fails and shows the difference
#   check-exports.sh LIBRARY --renew    writes the list anew
set -euo pipefail
list="$(dirname "$0")/symbols.txt"

# Inline functions and their data are left out: each compiler exports them at its own discretion.
exports() {
    nm -D --defined-only -C "$1" | cut -d' ' -f2- | grep -v -e '^[Wwu] ' -e 'lambda' \
        | cut -d' ' -f2- | LC_ALL=C sort -u
}

if [ "${2:-}" = --renew ]; then
    exports "$1" >"$list"
    exit
fi
exports "$1" | diff "$list" - || {
    echo "exports: < is listed and missing, > is exported and not listed."
    echo "exports: a listed symbol that goes breaks hosts."
    exit 1
}
