#!/usr/bin/env bash
# graphics-table.sh [PRESET]: writes docs/graphics.md, what of GDI+'s flat interface the library's own gdiplus.dll has, from
# its sources and the list of what is missing in a build of it.
set -euo pipefail

cd "$(dirname "$0")/.."
missing="build/${1:-release}/gdiplus/NotImplemented.cpp"
names=$(mktemp)
trap 'rm -f "$names"' EXIT
grep -ho 'WINGDIPAPI Gdip[A-Za-z0-9]*' gdiplus/src/*.cpp | cut -d' ' -f2 | sort -u >"$names"
lacking=$(grep -o 'int Gdip[A-Za-z0-9]*' "$missing" | cut -d' ' -f2)
{
    echo "# The library's own GDI+"
    echo
    echo "\`gdiplus/\` builds a \`gdiplus.dll\` over the library's renderer. Nothing uses it unasked. This table is made by"
    echo "\`scripts/graphics-table.sh\`: $(wc -l <"$names") functions are built, $(wc -l <<<"$lacking") are exported and answer"
    echo "NotImplemented. Compared with Wine's by \`tests/gdiplus\`: those marked with an asterisk."
    echo
    echo "| source | built |"
    echo "|---|---|"
    for source in gdiplus/src/*.cpp; do
        list=$(grep -o 'WINGDIPAPI Gdip[A-Za-z0-9]*' "$source" | cut -d' ' -f2 | sort -u | while read -r name; do
            if sed '/^int Hostile()/,/^}/d' tests/gdiplus/Calls.cpp | grep -qw "$name"; then echo "$name\\*"; else echo "$name"; fi
        done | paste -sd' ')
        [ -z "$list" ] || echo "| \`$(basename "$source")\` | $list |"
    done
    echo
    echo "## Missing"
    echo
    paste -sd' ' <<<"$lacking" | fold -s -w 118 | sed 's/ *$//'
    echo
    echo "## Partly"
    echo
    echo "- Pictures are kept with 24 or 32 bits a pixel; other formats are converted when read, and refused when made. Only"
    echo "  the first picture of a file is read; encoder parameters are not looked at."
    echo "- Text is smooth, not hinted, at quarters of a pixel; tabs, hot keys, right-to-left and vertical text, and characters"
    echo "  beyond the basic plane are not laid out. Private collections of fonts are missing."
    echo "- Of attributes of pictures there is the colour matrix. Transforms of pens, custom caps and compound pens are missing."
    echo "- A device context is drawn on in its own pixels where its mapping mode is MM_TEXT."
} >docs/graphics.md
