#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Builds the site with Doxygen: the API pages and the guides. Any warning is a failure.
#   build-docs.sh FOLDER     the pages go to FOLDER/html; exit code 77 without Doxygen
set -euo pipefail
command -v doxygen >/dev/null || { echo "docs: doxygen is not installed"; exit 77; }
mkdir -p "$1"
folder=$(cd "$1" && pwd)
cd "$(dirname "$0")/.."
version=$(sed -n 's/^project(VelorExchange VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
{ cat docs/Doxyfile; printf 'OUTPUT_DIRECTORY = "%s"\nPROJECT_NUMBER = %s\n' "$folder" "$version"; } | doxygen -
[ -s "$folder/html/index.html" ] || { echo "docs: no pages were made"; exit 1; }
echo "docs: $folder/html/index.html"
