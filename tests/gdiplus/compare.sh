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
# Numbers may differ by a hundredth: they are in single precision, in an order of steps of each library's own.
paste -d'|' "$folder/own" "$folder/wine" | awk -F'|' '
    { n = split($1, a, " "); same = n == split($2, b, " ")
      for (i = 1; same && i <= n; ++i)
          same = a[i] == b[i] || (a[1] != "Pixels" && i > 2 && (a[i] - b[i]) ^ 2 <= 0.011 ^ 2)
      if (!same) { print NR ": " $0; ++bad } }
    END { exit bad > 0 || NR == 0 }'
