#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Installs the packages that build-packages.sh has built in a fresh Debian 12, builds the tutorial's program
# against them there and runs it and velorx. Needs root, mmdebstrap and the network.
set -euo pipefail
cd "$(dirname "$0")/.."
command -v mmdebstrap >/dev/null || { echo "packages: mmdebstrap is missing" >&2; exit 1; }
packages=(build/packages/libvelorexchange1_*.deb build/packages/libvelorexchange-dev_*.deb build/packages/velorx_*.deb)
[ -e "${packages[0]}" ] || { echo "packages: run scripts/build-packages.sh first" >&2; exit 1; }

root=$(mktemp -d)
trap 'rm -rf "$root"' EXIT
chmod 755 "$root"
mmdebstrap --quiet --variant=apt --mode=root bookworm "$root"
cp /etc/resolv.conf "$root/etc/resolv.conf"

try=$root/root/try
mkdir -p "$try"
cp "${packages[@]}" examples/DrawingToTables.cpp examples/data/survey-plan.dxf "$try"
sed -n '/^```cmake$/,/^```$/p' docs/tutorial.md | grep -v '^```' >"$try/CMakeLists.txt"

# Nothing of the caller's environment takes part.
chroot "$root" /usr/bin/env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LC_ALL=C.UTF-8 \
    DEBIAN_FRONTEND=noninteractive /bin/bash -euo pipefail <<'EOF'
cd /root/try
apt-get update -qq
apt-get install -y -qq --no-install-recommends ./*.deb >/dev/null
echo "packages: installed"
velorx info survey-plan.dxf | head -n 5
velorx convert survey-plan.dxf again.dxf | tail -n 3
[ -s again.dxf ]
velorx convert survey-plan.dxf plan.sxf >/dev/null
velorx check plan.sxf
velorx render survey-plan.dxf plan.png | head -n 1
[ "$(head -c 4 plan.png | tail -c 3)" = PNG ]
velorx render survey-plan.dxf plan.pdf | head -n 1
[ "$(head -c 4 plan.pdf)" = %PDF ]
for page in velorx velorx-info velorx-convert velorx-render velorx-check; do
    [ -s /usr/share/man/man1/$page.1.gz ]
done
apt-get install -y -qq --no-install-recommends g++ cmake make pkg-config >/dev/null
cmake -B build . >/dev/null
cmake --build build
mkdir tables
build/DrawingToTables survey-plan.dxf tables | head -n 4
[ "$(ls tables/*.MIF | wc -l)" -gt 3 ]
c++ -std=c++17 -fPIC DrawingToTables.cpp $(pkg-config --cflags --libs velorexchange) -o by-pkg-config
dpkg --remove velorx libvelorexchange-dev libvelorexchange1 >/dev/null
! command -v velorx
echo "packages: velorx runs and draws, the tutorial's program is built by CMake and by pkg-config, all goes away again"
EOF
