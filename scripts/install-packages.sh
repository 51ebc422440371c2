#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Installs what is missing of the named groups of Debian packages: build, judges.
#   build   what the library, its tool and its tests are compiled with; required
#   judges  independent programs and libraries that tests compare with; optional
# Where nothing may be installed, says in plain words what is missing; fails only for "build".
set -euo pipefail

build="g++ cmake ninja-build pkg-config qtbase5-dev libqt5svg5-dev fonts-liberation libboost-dev libgtest-dev libcli11-dev"
judges="gdal-bin libgdal-dev libdxflib-dev python3-ezdxf clang-14 libclang-rt-14-dev libbenchmark-dev valgrind g++-mingw-w64-x86-64-win32 wine64 wine doxygen"

missing_of() {
    for package in "$@"; do
        dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null | grep -qx installed || echo "$package"
    done
}

may_install() {
    command -v apt-get >/dev/null && { [ "$(id -u)" = 0 ] || sudo -n true 2>/dev/null; }
}

as_root() {
    if [ "$(id -u)" = 0 ]; then "$@"; else sudo -n "$@"; fi
}

install() {
    as_root env DEBIAN_FRONTEND=noninteractive apt-get update -qq || return 1
    as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "$@" >/dev/null
}

for group in "$@"; do
    # shellcheck disable=SC2086  # a group is a list of words
    missing=$(missing_of ${!group} | tr '\n' ' ')
    [ -n "$missing" ] || continue
    echo "packages: installing $missing"
    # shellcheck disable=SC2086
    if may_install && install $missing; then
        continue
    fi
    echo "packages: could not install these Debian packages: $missing" >&2
    if [ "$group" = build ]; then
        echo "packages: they are required. As root: apt-get install $missing" >&2
        exit 1
    fi
    echo "packages: going on without them; what needs them is skipped and says so" >&2
done
