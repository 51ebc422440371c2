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
target=$(mktemp -d)
trap 'rm -rf "$target"' EXIT
"$build/tools/velorx/velorx" convert data/survey-plan.dxf "$target/plan.dxf" \
    | sed -E "s|$target|FOLDER|; s/[0-9]{2}\.[0-9]{2}\.[0-9]{2}, [0-9]+:[0-9]{2}:[0-9]{2}/TIME/" \
        >"$tests/tools/golden/convert-survey-plan.txt"
for version in 2000 2004; do
    "$build/tools/velorx/velorx" convert --quiet --force --version "$version" \
        "$tests/data/dxf/every-entity.dxf" "$tests/tools/golden/every-entity-$version.dxf"
done
for name in CountEntities ListLayers; do
    "$build/examples/$name" data/survey-plan.dxf >"$tests/examples/$name.txt"
done
