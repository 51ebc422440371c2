#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Writes the files that tests compare with anew, from a build: renew-golden.sh [BUILD]. The change is
# to be read like code.
set -euo pipefail
cd "$(dirname "$0")/../.."
build=$(cd "${1:-build/dev}" && pwd)
tests=$PWD/tests
cd examples
"$build/tools/velorx/velorx" info data/survey-plan.dxf >"$tests/tools/golden/survey-plan.txt"
"$build/tools/velorx/velorx" info --json data/survey-plan.dxf >"$tests/tools/golden/survey-plan.json"
for name in CountEntities ListLayers; do
    "$build/examples/$name" data/survey-plan.dxf >"$tests/examples/$name.txt"
done
