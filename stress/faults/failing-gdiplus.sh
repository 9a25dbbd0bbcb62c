#!/usr/bin/env bash
# failing-gdiplus.sh DEF SOURCE: the source of a GDI+ library with every function that DEF names, each of which fails.
set -euo pipefail

def=$1 source=$2
grep -o 'Gdip[A-Za-z0-9]*\|Gdiplus[A-Za-z]*' "$def" | sort -u | while read -r function; do
    value=1 # the status of any error
    [ "$function" != GdipAlloc ] || value=0
    echo "extern \"C\" __declspec(dllexport) void* $function() { return reinterpret_cast<void*>($value); }"
done >"$source"
