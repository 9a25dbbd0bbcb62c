#!/usr/bin/env bash
# kill-saving.sh PROGRAMS [--kills N] [--seed S]: kills a program that saves over and over, at random moments, in each
# way of saving by turns. What is there afterwards must be one of both versions, byte for byte, with at most one
# unfinished file beside it, left in the moment of replacing. Without --kills, 200.
set -euo pipefail

programs=$(realpath "$1") kills=200 seed=$(date +%s)
shift
while [ $# -gt 0 ]; do
    case $1 in
        --kills) kills=$2 ;;
        --seed) seed=$2 ;;
        *) echo "unknown: $1" >&2; exit 2 ;;
    esac
    shift 2
done

ways=(studio autosave untitled library)
longest=250 # milliseconds of saving before the end
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
RANDOM=$((seed % 32768))
echo "Seed $seed"

fail() {
    echo "Kill $kill, $way, after $delay ms: $1" >&2
    ls -l "$folder/$way" >&2
    exit 1
}

# Starts the program, lets it save for a while and kills it.
kill_once() {
    rm -f "$folder/$way/ready"
    wine "$programs/SaveLoop.exe" "$way" "Z:${folder//\//\\}\\$way" >"$folder/output" 2>&1 </dev/null &
    local process=$!
    while [ ! -e "$folder/$way/ready" ]; do
        kill -0 $process 2>/dev/null || fail "it ended: $(cat "$folder/output")"
        sleep 0.01
    done
    sleep "$(printf '0.%03d' $delay)"
    kill -KILL $process 2>/dev/null || fail "it ended: $(cat "$folder/output")"
    wait $process 2>/dev/null || true
}

declare -A unfinished kept newer
for ((kill = 0; kill < kills; ++kill)); do
    way=${ways[kill % ${#ways[@]}]}
    delay=$((RANDOM % longest))
    mkdir -p "$folder/$way"
    kill_once
    cd "$folder/$way"
    case $way in
        autosave) file=page.cbf.autosave ;;
        untitled) file=$(echo untitled-*.autosave) ;;
        *) file=page.cbf ;;
    esac
    if cmp -s "$file" old.ref; then
        kept[$way]=$((${kept[$way]:-0} + 1))
    elif cmp -s "$file" new.ref; then
        newer[$way]=$((${newer[$way]:-0} + 1))
    else
        fail "$file is neither version"
    fi
    beside=$(find . -name '*.saving' | wc -l)
    others=$(find . -type f ! -name '*.saving' ! -name '*.ref' ! -name ready ! -name page.cbf ! -name "$file" | wc -l)
    [ "$beside" -le 1 ] && [ "$others" -eq 0 ] || fail "there are files that nobody wants"
    rm -f ./*.saving
    unfinished[$way]=$((${unfinished[$way]:-0} + beside))
done

for way in "${ways[@]}"; do
    echo "$way: older version ${kept[$way]:-0}, newer version ${newer[$way]:-0}, unfinished files ${unfinished[$way]:-0}"
    [ "$way" = library ] || [ ! -d "$folder/$way" ] || for version in old new; do
        cp "$folder/$way/$version.ref" "$folder/version.cbf"
        wine "$programs/Studio.exe" --check "Z:${folder//\//\\}\\version.cbf" >"$folder/report" 2>&1 </dev/null ||
            { cat "$folder/report" >&2; exit 1; }
    done
done
echo "$kills kills"
