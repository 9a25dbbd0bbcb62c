#!/usr/bin/env bash
# make-failing-gdiplus.sh OBJDUMP COMPILER DLL MODULE...: a GDI+ library with every function that the modules import,
# each of which fails.
set -euo pipefail

objdump=$1 compiler=$2 dll=$3
shift 3
source=$(mktemp --suffix=.c)
trap 'rm -f "$source"' EXIT

"$objdump" -p "$@" | awk '
    /DLL Name:/ { wanted = tolower($3) == "gdiplus.dll" }
    wanted && $NF ~ /^Gdip/ { print $NF }' | sort -u | while read -r function; do
    value=1 # the status of any error
    [ "$function" != GdipAlloc ] || value=0
    echo "__declspec(dllexport) void* $function(void) { return (void*)$value; }"
done >"$source"
grep -q GdiplusStartup "$source"
"$compiler" -shared -o "$dll" "$source"
