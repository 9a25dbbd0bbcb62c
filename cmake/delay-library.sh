#!/usr/bin/env bash
# delay-library.sh NM DLLTOOL AR LIBRARY DLL OUT OBJECT: an import library like LIBRARY, whose functions the system does not
# take from DLL; OBJECT, which comes into it, does.
set -euo pipefail

nm=$1 dlltool=$2 ar=$3 library=$4 dll=$5 out=$6 object=$7
{
    echo EXPORTS
    "$nm" --quiet --defined-only "$library" | awk '$2 == "T" { sub(/^_/, "", $3); print "    " $3 }' | sort -u
} >"$out.def"
# The archive's name, without a folder, becomes a part of its symbols.
cd "$(dirname "$out")"
"$dlltool" --kill-at --input-def "$out.def" --dllname "$dll" --output-delaylib "$(basename "$out")"
"$ar" q "$out" "$object"
