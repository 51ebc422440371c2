#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Compiles the Windows half of the classifier's platform layer with mingw-w64 and runs its test under
# wine. Exits with 77, which ctest takes as skipped, where one of the two is not installed.
# Usage: run-windows-platform-test.sh SOURCE_ROOT BUILD_FOLDER
set -euo pipefail

root=$1
build=$2
classifier=$root/VelorExchange/pnr/classifier
tests=$root/tests/pnr/classifier

first_of() {
    for program in "$@"; do
        command -v "$program" && return 0
    done
    return 1
}

skip() {
    echo "SKIPPED: $1; the Windows half of the platform layer is not tested here"
    exit 77
}

compiler=$(first_of x86_64-w64-mingw32-g++ x86_64-w64-mingw32-g++-win32 x86_64-w64-mingw32-g++-posix) \
    || skip "no mingw-w64 compiler (Debian package g++-mingw-w64-x86-64)"
wine=$(first_of wine64 wine /usr/lib/wine/wine64) \
    || skip "no wine (Debian packages wine64 and wine)"

mkdir -p "$build"
flags=(-std=c++17 -O1 -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror -static -I"$root")
"$compiler" "${flags[@]}" -shared -o "$build/stand_in.dll" "$tests/WindowsStandIn.cpp"
"$compiler" "${flags[@]}" -o "$build/platform_test.exe" "$tests/RscPlatformWindowsTest.cpp" \
    "$classifier/RscPlatformWindows.cpp" "$classifier/FloatingPointGuard.cpp"

# A prefix of its own, no window and no questions.
export WINEPREFIX=$build/wine WINEARCH=win64 WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml="
unset DISPLAY
"$wine" wineboot --init >"$build/wineboot.log" 2>&1 \
    || skip "wine is installed but does not start (see $build/wineboot.log)"
cd "$build"
"$wine" platform_test.exe stand_in.dll
