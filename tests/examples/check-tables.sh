#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Runs DrawingToTables on the demo drawing and looks at the tables.
#   check-tables.sh PROGRAM DRAWING FOLDER
set -euo pipefail
rm -rf "$3"
mkdir -p "$3"
report=$("$1" "$2" "$3")

fail() {
    echo "tables: $*"
    exit 1
}

# Each layer that the report counts has a pair, whose objects are as many as the report says.
total=0
for mif in "$3"/*.MIF; do
    [ -f "${mif%.MIF}.MID" ] || fail "a table without rows"
    lines=$(grep -acE '^(PLINE|LINE)' "$mif")
    total=$((total + lines))
done
counted=$(sed -n 's/^Записаны в файл полилинии - //p' <<<"$report" | awk "{ sum += \$1 } END { print sum + 0 }")
[ "$total" -gt 50 ] || fail "only $total lines"
[ "$total" = "$counted" ] || fail "$total lines in the tables, $counted in the report"
if "$1" "$3/missing.dxf" "$3"; then fail "a missing drawing is no failure"; fi
if "$1" "$2" "$3/missing/folder" | grep -q "Записаны"; then fail "counts for tables that were not written"; fi
