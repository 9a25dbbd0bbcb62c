#!/usr/bin/env bash
# includes.sh: nobody includes what is not theirs. The top of a library folder holds public headers, internal/ what
# other folders of the library share, src/ what is the folder's own. Headers of a lower layer know no higher one.
set -euo pipefail
cd "$(dirname "$0")/.."

find . -path ./build -prune -o \( -name '*.h' -o -name '*.cpp' \) -printf '%P\n' | sort | xargs awk '
BEGIN {
    layer["core"] = layer["appearance"] = layer["filter"] = 1
    layer["behaviour"] = 2
    layer["canvas"] = 3
    layer["window"] = layer["module"] = 4
}

function complain(why) {
    print FILENAME ":" FNR ": " why ": " included
    failed = 1
}

FNR == 1 {
    depth = split(FILENAME, path, "/")
    tests = path[1] == "tests"
    owner = tests ? path[2] : path[1]
    header = !tests && owner in layer && path[2] != "src" && FILENAME ~ /\.h$/
    public = header && depth == 2
}

/^ *# *include "/ {
    included = $0
    gsub(/^[^"]*"|".*$/, "", included)
    split(included, part, "/")
    if (part[2] == "src" && part[1] != owner)
        complain("a header of another folder")
    if (part[2] == "internal" && (public || !(owner in layer)))
        complain("a header of the library alone")
    if (header && part[1] in layer && layer[part[1]] > layer[owner])
        complain("a header of a higher layer")
}

END { exit failed }'
