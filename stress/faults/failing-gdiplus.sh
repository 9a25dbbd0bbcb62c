#!/usr/bin/env bash
# failing-gdiplus.sh DEF SOURCE: the source of a GDI+ library with every function that DEF names, each of which fails. A
# name for 32 bits tells the bytes of the arguments, which the function takes off the stack.
set -euo pipefail

def=$1 source=$2
grep -o 'Gdip[A-Za-z0-9@]*' "$def" | sort -u | while IFS=@ read -r function bytes; do
    value=1 # the status of any error
    [ "$function" != GdipAlloc ] || value=0
    arguments=$(yes int | head -n $((${bytes:-0} / 4)) | paste -sd , || true)
    echo "extern \"C\" __declspec(dllexport) void* __stdcall $function($arguments) { return reinterpret_cast<void*>($value); }"
done >"$source"
