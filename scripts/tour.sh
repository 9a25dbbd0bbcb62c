#!/usr/bin/env bash
# Drives Studio with real mouse and keyboard input on the display of the environment: draws one object of each kind,
# moves and resizes, saves, starts a new page, opens the file again. Every step must change the picture, and the page
# that was opened must show what the saved one showed. Leaves pictures and the file in build/run.
set -euo pipefail

out=build/run
program=build/release/bin/Studio.exe
page=1100x720+108+92  # the page on the screen: Studio's window opens at a fixed place

rm -rf "$out"
mkdir -p "$out"
studio=
trap '[ -z "$studio" ] || kill "$studio" 2>/dev/null || true' EXIT

fail() {
    import -window root "$out/failed.png" || true
    echo "The tour failed: $1 (the screen is in $out/failed.png)" >&2
    exit 1
}

wait_for() { # wait_for WHAT COMMAND...: until the command succeeds
    local what=$1
    shift
    for _ in $(seq 200); do
        "$@" >/dev/null 2>&1 && return
        sleep 0.05
    done
    fail "$what"
}

window() { xdotool search --onlyvisible --name "$1"; }
no_window() { ! window "$1"; }
move() { xdotool mousemove "$1" "$2" && sleep 0.06; }
click() { move "$1" "$2" && xdotool click 1 && sleep 0.15; }
press() { xdotool key "$@" && sleep 0.2; }
type_line() { xdotool type --delay 15 "$1" && sleep 0.2 && press Return; }

drag() {
    move "$1" "$2"
    xdotool mousedown 1
    sleep 0.06
    move $((($1 + $3) / 2)) $((($2 + $4) / 2))
    move "$3" "$4"
    xdotool mouseup 1
    sleep 0.15
}

picture() { # picture NAME: the screen, and the page alone for comparing
    sleep 0.3
    import -window root "$out/$1.png"
    convert "$out/$1.png" -crop "$page" +repage "$out/.$1.page.png"
}

pixels_apart() { compare -metric AE "$out/.$1.page.png" "$out/.$2.page.png" null: 2>&1 || true; }

previous=
step() { # step NAME: the picture after a step, which must differ from the one before it
    picture "$1"
    [ -z "$previous" ] || [ "$(pixels_apart "$previous" "$1")" != 0 ] || fail "nothing changed at step $1"
    previous=$1
    echo "  $1"
}

echo "Touring Studio"
wine "$program" >"$out/studio.log" 2>&1 &
studio=$!
wait_for "Studio did not open" window 'untitled.* - Studio'
click 600 700
step 01-empty

press r && drag 200 150 400 270
step 02-rectangle
press e && drag 700 150 900 300
step 03-ellipse
press t && drag 200 350 420 420
step 04-text-box
press l && drag 500 400 700 500
step 05-line
press p && click 750 450 && click 820 400 && click 900 520 && move 1000 420
xdotool click --repeat 2 --delay 60 1
step 06-polyline
press v && click 300 200
step 07-selected
drag 300 200 360 230
step 08-moved
drag 460 300 620 330
step 09-resized
click 600 780
step 10-page

file="$PWD/$out/tour.cbf"
press ctrl+s
wait_for "no dialog for saving" window '^Save'
type_line "Z:${file//\//\\}"
wait_for "the page was not saved" test -s "$file"
wait_for "the title does not name the file" window 'tour.cbf - Studio'
press ctrl+n
wait_for "no new page" window 'untitled.* - Studio'
step 11-new
press ctrl+o
wait_for "no dialog for opening" window '^Open'
type_line "Z:${file//\//\\}"
wait_for "the page was not opened" window 'tour.cbf - Studio'
wait_for "the dialog stayed" no_window '^Open'
step 12-reopened
apart=$(pixels_apart 10-page 12-reopened)
[ "$apart" = 0 ] || fail "the reopened page differs from the saved one by $apart pixels"

press alt+F4
wait "$studio" || fail "Studio ended with code $?"
studio=
rm -f "$out"/.*.page.png
echo "The tour is complete. Pictures and the saved file (tour.cbf) are in $out/."
