#!/usr/bin/env bash
# failing-gdiplus.sh OBJDUMP SOURCE MODULE...: the source of a GDI+ library with every function that the modules import,
# each of which fails.
set -euo pipefail

objdump=$1 source=$2
shift 2

"$objdump" -p "$@" | awk '
    /DLL Name:/ { wanted = tolower($3) == "gdiplus.dll" }
    wanted && $NF ~ /^Gdip/ { print $NF }' | sort -u | while read -r function; do
    value=1 # the status of any error
    [ "$function" != GdipAlloc ] || value=0
    echo "extern \"C\" __declspec(dllexport) void* $function() { return reinterpret_cast<void*>($value); }"
done >"$source"
grep -q GdiplusStartup "$source"
