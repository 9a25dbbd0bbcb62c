#!/usr/bin/env bash
# Two runs of a seed meet the same from the first message to the last. Usage: replay.sh MONKEY MESSAGES SEED
set -euo pipefail
launcher=$(dirname "$0")/../../cmake/wine-launcher.sh

for subject in canvas studio; do
    first=$("$launcher" "$1" "--$subject" --messages "$2" --seed "$3")
    second=$("$launcher" "$1" "--$subject" --messages "$2" --seed "$3")
    echo "$first"
    [ "$first" = "$second" ] || { echo "the second run was another: $second"; exit 1; }
done
