#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Builds the Debian packages of what is committed, in build/packages, and lets lintian judge them.
# Needs, beside what the build needs: debhelper, dpkg-dev, fakeroot, git, lintian, pandoc.
set -euo pipefail
cd "$(dirname "$0")/.."
for program in dh dpkg-buildpackage fakeroot git lintian pandoc; do
    command -v "$program" >/dev/null || { echo "packages: $program is missing" >&2; exit 1; }
done

version=$(sed -n '1s/.*(\(.*\)).*/\1/p' debian/changelog)
target=build/packages
rm -rf "$target"
mkdir -p "$target"
git archive --prefix="velorexchange-$version/" HEAD | tar -x -C "$target"
# Flags of the caller would take the place of those that Debian builds with.
(cd "$target/velorexchange-$version" && env -u CFLAGS -u CXXFLAGS dpkg-buildpackage --build=binary --no-sign)
(cd "$target" && lintian --fail-on error,warning --tag-display-limit 0 ./*.changes)
ls "$target"/*.deb
