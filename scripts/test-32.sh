#!/usr/bin/env bash
# Builds the library and Studio for 32-bit Windows and runs their tests. Wine for 32 bits comes from Debian's packages of
# another architecture, which this adds to the machine: run it in a system of its own,
# `scripts/try-on.sh bookworm scripts/test-32.sh`.
set -euo pipefail
cd "$(dirname "$0")/.."

if ! dpkg-query -W wine32:i386 >/dev/null 2>&1; then
    echo "Installing Wine for 32 bits"
    mkdir -p build
    export DEBIAN_FRONTEND=noninteractive
    { dpkg --add-architecture i386 && apt-get update && apt-get install -y --no-install-recommends wine32:i386; } >build/wine32.log 2>&1 ||
        { tail -n 20 build/wine32.log && exit 1; }
fi
[ -d build/wine/drive_c/windows/syswow64 ] || rm -rf build/wine # of a Wine without 32 bits
. scripts/environment.sh
scripts/build.sh i686-checked
on_one_core ctest --preset i686-checked
