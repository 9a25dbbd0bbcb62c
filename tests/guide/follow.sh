#!/usr/bin/env bash
# follow.sh GUIDE PACKAGE.zip FOLDER: follows the guide to the letter in an empty folder that holds nothing but the
# package, and looks whether its program shows what the guide promises.
set -euo pipefail

guide=$(realpath "$1")
package=$(realpath "$2")
here=$(realpath "$(dirname "$0")")
rm -rf "$3"
mkdir -p "$3"
cd "$3"
ln -s "$package" "$(basename "$package")"

awk -f "$here/steps.awk" "$guide" >steps.sh
bash steps.sh >log.txt 2>&1 || { tail -n 40 log.txt; echo "The guide's steps failed."; exit 1; }

cd panel
failed=no
fail() {
    echo "$1"
    failed=yes
}

cmp demo.png again.png || fail "The page differs after it was saved and opened."

pixel() { # pixel X Y COLOUR WHAT
    local found
    found=$(convert demo.png -depth 8 -format "%[hex:u.p{$1,$2}]" info:)
    [ "${found:0:6}" = "$3" ] || fail "$4: the pixel at $1,$2 is $found, not $3"
}
has() { # has GEOMETRY COLOUR WHAT: the colour is somewhere in that part
    [ "$(convert demo.png -crop "$1" -fill black +opaque "#$2" -fill white -opaque "#$2" -format '%[fx:maxima]' info:)" = 1 ] ||
        fail "$3: no $2 in $1"
}

pixel 310 330 161B22 "the rectangle"
pixel 76 52 2EA043 "the first ellipse"
pixel 76 150 58A6FF "the cap of the first fader where it was dragged to"
pixel 76 120 000000 "the slot above it"
pixel 168 200 000000 "the slot of the second fader"
pixel 168 260 58A6FF "the part of it below the cap"
pixel 260 120 58A6FF "the cap of the third fader"
pixel 475 320 0000FF "the line"
has 20x20+370+215 0000FF "the polyline"
has 60x24+46+84 E6EDF3 "the name of the first fader"

# The picture in the guide shows the window, of which the page is a part. Letters may differ a little.
convert "${guide%.md}.png" -crop 620x360+4+76 +repage promised.png
convert demo.png -crop 620x360+0+0 +repage shown.png
apart=$(compare -metric AE -fuzz 10% promised.png shown.png null: 2>&1) || true
[ "$apart" -le 300 ] || fail "The guide's picture shows another page: $apart pixels differ."

# The page in the picture of the window, below the tools and the strip, and the strip's ground.
[ "$(convert window.png -depth 8 -format '%[hex:u.p{76,212}]' info: | cut -c1-6)" = 58A6FF ] ||
    fail "The window's picture does not show the first fader."
[ "$(convert window.png -crop 200x10+200+36 -unique-colors -format '%w' info:)" -ge 5 ] ||
    fail "The strip has no gradient."
[ "$failed" = no ]
