#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# check-demo-drawing.sh script|ezdxf|gdal PROGRAM: looks at the demo drawing with a program from
# outside. Exit code 77 where that program is not installed.
set -euo pipefail
data=$(cd "$(dirname "$0")/../../examples/data" && pwd)
program=${2:-}

skip() {
    echo "skipped: $1"
    exit 77
}

command -v "$program" >/dev/null || skip "${program:-python3} is not installed"

# The script writes beside itself, so it is run in a copy of its folder.
made_again() {
    copy=$(mktemp -d)
    trap 'rm -rf "$copy"' EXIT
    cp "$data"/*.py "$copy"
    PYTHONDONTWRITEBYTECODE=1 "$program" "$copy/make_survey_plan.py"
    for file in survey-plan.dxf survey-plan-relief.png; do
        cmp "$copy/$file" "$data/$file"
    done
}

audit() {
    "$program" -c 'import ezdxf' 2>/dev/null || skip "python3-ezdxf is not installed"
    "$program" - "$data/survey-plan.dxf" <<'EOF'
import sys
import ezdxf

drawing = ezdxf.readfile(sys.argv[1])
audit = drawing.audit()
for entry in audit.errors + audit.fixes:
    print(entry.code, entry.message)
assert len(drawing.modelspace()) > 200, "too few entities"
sys.exit(1 if audit.errors or audit.fixes else 0)
EOF
}

# GDAL sees a road, a text and an attribute-bearing well where the plan has them.
open_in_gdal() {
    local seen
    seen=$("$program" -ro -al "$data/survey-plan.dxf" 2>/dev/null)
    for wanted in "Layer (String) = Дороги покрытие" "Text (String) = 5КЖ" \
        "Layer (String) = Горизонтали утолщённые"; do
        grep -qF "$wanted" <<<"$seen" || { echo "GDAL does not see: $wanted"; exit 1; }
    done
}

case $1 in
script) made_again ;;
ezdxf) audit ;;
gdal) open_in_gdal ;;
esac
