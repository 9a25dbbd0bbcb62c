#!/usr/bin/env bash
# no-gdiplus.sh PROGRAMS DLL: runs the library and Studio beside a GDI+ that cannot start, and beside none.
set -euo pipefail

programs=$1 dll=$2
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cp "$programs"/{NoGdiplus,Studio}.exe "$programs"/{TesselCtrls,TesselAfx,MarrowLog}.dll "$programs"/lib*.dll \
    "$dll" "$folder"
cd "$folder"
for order in n ''; do
    WINEDLLOVERRIDES="gdiplus=$order" "$OLDPWD/cmake/wine-launcher.sh" NoGdiplus.exe
done
