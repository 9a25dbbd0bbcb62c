#!/usr/bin/env bash
# tidy-batch.sh BATCH: clang-tidy over the source files that the file BATCH names, as one source file that includes
# them all. BATCH's first line has the compiler's options. Clean files get their mark in build/tidy/clean; what is found
# is left in BATCH.found, files that do not go together with the others in BATCH.refused.
set -euo pipefail

batch=$1
{ read -r options && mapfile -t files; } <"$batch"
read -ra arguments <<<"$options"
compiler=$(x86_64-w64-mingw32-g++-posix -print-file-name=include)
arguments+=(--target=x86_64-w64-mingw32 -nostdinc++ -isystem "$compiler/c++" -isystem "$compiler/c++/x86_64-w64-mingw32"
    -isystem "$compiler/c++/backward" -isystem /usr/x86_64-w64-mingw32/include -ferror-limit=0)

tidy() {
    printf '#include "%s"\n' "${files[@]/#/$PWD/}" >"$batch.cpp"
    clang-tidy --quiet "$1" "$batch.cpp" -- "${arguments[@]}" >"$batch.found" 2>"$batch.log"
}

# Two files that define one name do not go together: those with errors are left for another batch. One check that
# costs little is enough to learn it.
while [ ${#files[@]} -gt 1 ] && ! tidy "--checks=-*,modernize-deprecated-headers"; do
    accepted=("${files[0]}")
    for file in "${files[@]:1}"; do
        if grep -q "^$PWD/$file:.*clang-diagnostic-error" "$batch.found"; then
            printf "%s\t%s\n" "$file" "$options" >>"$batch.refused"
        else
            accepted+=("$file")
        fi
    done
    [ ${#accepted[@]} -lt ${#files[@]} ] || break
    files=("${accepted[@]}")
done

if tidy --config-file=.clang-tidy; then
    rm "$batch.found"
    for file in "${files[@]}"; do
        mkdir -p "build/tidy/clean/${file%/*}"
        echo "$options" >"build/tidy/clean/$file"
        touch -r build/tidy/started "build/tidy/clean/$file"
    done
elif [ ! -s "$batch.found" ]; then
    tail -n 20 "$batch.log" >"$batch.found"
fi
