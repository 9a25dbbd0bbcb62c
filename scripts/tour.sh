#!/usr/bin/env bash
# Drives Studio with real mouse and keyboard input on the display of the environment: shows and runs the demo project,
# draws one object of each kind on a new page, moves, resizes, undoes, pastes, groups, saves, opens the file again. Every
# step must change the picture, and the page that was opened must show what the saved one showed. Leaves pictures and the
# file in build/run.
set -euo pipefail

out=build/run
program=build/release/bin/Studio.exe
page=830x700+240+92  # the page on the screen: Studio's window opens at a fixed place when none is kept

rm -rf "$out"
mkdir -p "$out"
find "${WINEPREFIX:?}/drive_c/users" -path '*/TesselStudio/Studio.ini' -delete
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

page_shows() { # page_shows COLOURS: at least so many on the page
    import -window root "$out/.now.png"
    [ "$(convert "$out/.now.png" -crop "$page" -format '%k' info:)" -ge "$1" ]
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
wine "$program" --demo >"$out/studio.log" 2>&1 &
studio=$!
wait_for "Studio did not open" window 'untitled.* - Studio'
wait_for "the demo project is not shown" page_shows 20
step 01-demo
press F5
wait_for "the pages do not run" window 'Running'
step 02-running
drag 252 300 420 300
press Escape
wait_for "the pages did not stop" no_window 'Running'
press ctrl+n
step 03-new

press r && drag 270 150 450 270
step 04-rectangle
press e && drag 700 150 900 300
step 05-ellipse
press t && drag 270 350 470 420
step 06-text-box
press l && drag 500 400 700 500
step 07-line
press p && click 750 450 && click 820 400 && click 900 520 && move 1000 420
xdotool click --repeat 2 --delay 60 1
step 08-polyline
press v && click 320 200
step 09-selected
drag 320 200 380 230
step 10-moved
drag 510 300 640 330
step 11-resized
press ctrl+z
step 12-undone
press ctrl+y
step 13-redone
press ctrl+c && press ctrl+v && drag 420 240 440 600
step 14-pasted
press ctrl+a && press ctrl+g
step 15-grouped
press Down Down Down
step 16-nudged
click 600 780
step 17-page

file="$PWD/$out/tour.cbf"
press ctrl+s
wait_for "no dialog for saving" window '^Save'
type_line "Z:${file//\//\\}"
wait_for "the page was not saved" test -s "$file"
wait_for "the title does not name the file" window 'tour.cbf - Studio'
press ctrl+n
wait_for "no new page" window 'untitled.* - Studio'
step 18-new
press ctrl+o
wait_for "no dialog for opening" window '^Open'
type_line "Z:${file//\//\\}"
wait_for "the page was not opened" window 'tour.cbf - Studio'
wait_for "the dialog stayed" no_window '^Open'
step 19-reopened
apart=$(pixels_apart 17-page 19-reopened)
[ "$apart" = 0 ] || fail "the reopened page differs from the saved one by $apart pixels"

press alt+F4
wait "$studio" || fail "Studio ended with code $?"
studio=
wine "$program" --check "$out/tour.cbf" >"$out/check.txt" 2>/dev/null </dev/null || fail "the saved file is not sound"
rm -f "$out"/.*.png
echo "The tour is complete. Pictures and the saved file (tour.cbf) are in $out/."
