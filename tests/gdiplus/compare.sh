#!/usr/bin/env bash
# compare.sh PROGRAM SEED: the same calls on the library's own GDI+ and on Wine's must have the same answers; the own one
# also takes bad arguments. The DLL stands beside the program.
set -euo pipefail

program=$1
seed=$2
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
WINEDLLOVERRIDES=gdiplus=n,b wine "$program" "$seed" >"$folder/own" 2>/dev/null </dev/null
WINEDLLOVERRIDES=gdiplus=b wine "$program" "$seed" >"$folder/wine" 2>/dev/null </dev/null
WINEDLLOVERRIDES=gdiplus=n,b wine "$program" --hostile "$seed" >"$folder/hostile" 2>/dev/null </dev/null
cat "$folder/hostile"
wc -l <"$folder/own"
diff "$folder/own" "$folder/wine" >"$folder/differences" || { head -n 40 "$folder/differences"; exit 1; }
