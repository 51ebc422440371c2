#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# run.sh install|find-package|pkg-config|readme|tool BUILD PREFIX: installs the build, or makes a
# program outside of the tree that uses the installed copy and runs it. Flags for the compiler come in
# CXX and CXXFLAGS, the folder of libraries below the prefix in LIBDIR.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
build=$2
prefix=$3
work=$prefix-$1

run_consumer() {
    local seen
    seen=$("$1" "$here/drawing.dxf")
    [ "$seen" = $'Roads\nWater' ] || { echo "the consumer printed: $seen"; exit 1; }
}

build_with_pkg_config() {
    command -v pkg-config >/dev/null || { echo "skipped: pkg-config is not installed"; exit 77; }
    export PKG_CONFIG_PATH=$prefix/$LIBDIR/pkgconfig
    mkdir -p "$work"
    # shellcheck disable=SC2046,SC2086  # lists of flags
    "$CXX" $CXXFLAGS -std=c++17 -fPIC "$1" -o "$work/consumer" \
        $(pkg-config --cflags --libs velorexchange) "-Wl,-rpath,$prefix/$LIBDIR"
}

# Builds the README's Nth piece of C++.
example() {
    awk -v wanted="$1" '/^```cpp$/ { count++; inside = count == wanted; next }
        /^```$/ { inside = 0 } inside' "$here/../../README.md" >"$work/readme.cpp"
    build_with_pkg_config "$work/readme.cpp"
}

rm -rf "$work"
case $1 in
install)
    rm -rf "$prefix"
    cmake --install "$build" --prefix "$prefix"
    private=$(find "$prefix/include" -name '*_p.h')
    [ -z "$private" ] || { echo "private headers were installed: $private"; exit 1; }
    ;;
find-package)
    cmake -G Ninja -S "$here/find-package" -B "$work" -DCMAKE_PREFIX_PATH="$prefix" \
        -DCMAKE_CXX_COMPILER="$CXX" -DCMAKE_CXX_FLAGS="$CXXFLAGS"
    cmake --build "$work"
    run_consumer "$work/consumer"
    ;;
pkg-config)
    build_with_pkg_config "$here/consumer.cpp"
    run_consumer "$work/consumer"
    ;;
readme)
    mkdir -p "$work"
    example 1
    "$work/consumer" "$here/../../examples/data/survey-plan.dxf" >"$work/texts"
    grep -qxF "1284440.00 412694.00 ул. Геодезистов" "$work/texts"
    example 2
    (cd "$work" && ./consumer)
    [ "$(grep -c LWPOLYLINE "$work/house.dxf")" = 1 ]
    ;;
tool)
    "$prefix/bin/velorx" info "$here/drawing.dxf" | grep -q Roads
    ;;
esac
