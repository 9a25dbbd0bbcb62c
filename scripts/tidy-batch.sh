#!/usr/bin/env bash
# tidy-batch.sh BATCH: clang-tidy over the source files that the file BATCH names, as one source file that includes
# them all. BATCH's first line has the compiler's options. Clean files get their mark in build/tidy/clean; what is found
# is left in BATCH.found.
set -euo pipefail

batch=$1
{ read -r options && mapfile -t files; } <"$batch"
read -ra options <<<"$options"
compiler=$(x86_64-w64-mingw32-g++-posix -print-file-name=include)
system=(--target=x86_64-w64-mingw32 -nostdinc++ -isystem "$compiler/c++" -isystem "$compiler/c++/x86_64-w64-mingw32"
    -isystem "$compiler/c++/backward" -isystem /usr/x86_64-w64-mingw32/include)

tidy() {
    clang-tidy --quiet "$1" "$batch.cpp" -- "${system[@]}" "${options[@]}" -ferror-limit=0 \
        >"$batch.found" 2>"$batch.log"
}

# Files that define one name twice do not go together: those with errors are checked apart from the others.
# One check that costs little is enough to learn it.
split() {
    local refused=() accepted=()
    tidy '--checks=-*,modernize-deprecated-headers' || true
    for file in "${files[@]}"; do
        if grep -q "^$PWD/$file:.*clang-diagnostic-error" "$batch.found"; then
            refused+=("$file")
        else
            accepted+=("$file")
        fi
    done
    [ ${#refused[@]} -gt 0 ] || return 0
    if [ ${#accepted[@]} -eq 0 ]; then
        accepted=("${refused[0]}")
        refused=("${refused[@]:1}")
    fi
    rm "$batch.found"
    printf '%s\n' "${options[*]}" "${accepted[@]}" >"$batch.accepted"
    printf '%s\n' "${options[*]}" "${refused[@]}" >"$batch.refused"
    "$0" "$batch.accepted"
    "$0" "$batch.refused"
    exit
}

printf '#include "%s"\n' "${files[@]/#/$PWD/}" >"$batch.cpp"
[ ${#files[@]} -eq 1 ] || split
if tidy --config-file=.clang-tidy; then
    rm "$batch.found"
    for file in "${files[@]}"; do
        mkdir -p "build/tidy/clean/${file%/*}"
        echo "${options[*]}" >"build/tidy/clean/$file"
        touch -r build/tidy/started "build/tidy/clean/$file"
    done
elif [ ! -s "$batch.found" ]; then
    tail -n 20 "$batch.log" >"$batch.found"
fi
