#!/usr/bin/env bash
# Takes over the pictures and texts that the last run of the tests found different, after somebody has looked at them.
set -euo pipefail
shopt -s nullglob

for picture in build/checked/golden/*/*.png; do
    folder=$(basename "$(dirname "$picture")")
    mkdir -p "tests/$folder/golden"
    # The same pixels in fewer bytes.
    convert "$picture" -strip -quality 92 "tests/$folder/golden/$(basename "$picture")"
    rm -v "$picture"
done
for text in build/checked/golden/*/*.txt; do
    mv -v "$text" "tests/$(basename "$(dirname "$text")")/golden/"
done
