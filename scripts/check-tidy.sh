#!/usr/bin/env bash
# clang-tidy over every source file of build/checked, which must be built: its commands and lists of headers are used.
# A file that was clean and has not changed since, nor a header that it includes, is left out. Nearly all of the time
# goes into the system's headers, so files with the same options of the compiler are checked together in batches.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/has-version.sh clang-tidy 14 || exit 0

build=build/checked
work=build/tidy
batch_size=16
tab=$'\t'
mkdir -p "$work/clean"
rm -rf "$work/batches"
mkdir "$work/batches"
touch "$work/started"

# Lines of a source and its options; those that only the compiler of the build knows are left out. The host of
# tests/host is a project of its own, which the build tree does not know.
list_sources() {
    ninja -C "$build" -t compdb | awk -v root="$PWD/" '
        /^ *"command":/ { command = $0 }
        /^ *"file":/ {
            file = $0
            sub(/^ *"file": "/, "", file)
            sub(/",?$/, "", file)
            if (file !~ /\.cpp$/ || index(file, root) != 1 || index(file, root "build/") == 1) next
            gsub(/\\\\\\"/, "\"", command)  # quotes within a definition
            options = ""
            count = split(command, word, " ")
            for (i = 1; i <= count; ++i) {
                if (word[i] ~ /^-[DI]/ || word[i] ~ /^-std=/) options = options word[i] " "
                if (word[i] == "-isystem") options = options "-isystem " word[++i] " "
            }
            print substr(file, length(root) + 1) "\t" substr(options, 1, length(options) - 1)
        }
    ' | sort -u -t "$tab" -k 1,1
}

# Lines of a source and a header of the tree that it includes; "*" includes what precompiled headers include.
list_headers() {
    ninja -C "$build" -t deps | awk -v root="$PWD/" '
        /^[^ ].*: #deps/ { source = /\.gch: #deps/ ? "*" : "" }
        /^ / && index($1, root) == 1 && index($1, root "build/") != 1 {
            path = substr($1, length(root) + 1)
            if (source == "") source = path
            else print source "\t" path
        }
    '
}

# The sources to check: never clean, options changed, or something newer than the time when they were clean.
list_stale() {
    find . -path ./build -prune -o \( -name '*.h' -o -name '*.cpp' -o -name .clang-tidy -o -name '*tidy*.sh' \) \
        -printf '%P\t%T@\n' >"$work/times"
    find "$work/clean" -type f -printf '%P\t%T@\n' >"$work/clean-times"
    awk -F "$tab" -v work="$work" '
        function later(name) { if (time[name] + 0 > newest) newest = time[name] + 0 }
        FILENAME == work "/times" { time[$1] = $2; next }
        FILENAME == work "/clean-times" { clean[$1] = $2; next }
        FILENAME == work "/headers" { headers[$1] = headers[$1] $2 "\t"; next }
        {
            newest = 0
            later($1)
            later(".clang-tidy")
            later("scripts/check-tidy.sh")
            later("scripts/tidy-batch.sh")
            count = split(headers["*"] headers[$1], name, "\t")
            for (i = 1; i <= count; ++i) later(name[i])
            if (!($1 in headers))  # not built: any header may be one of its own
                for (file in time)
                    if (file ~ /\.h$/) later(file)
            options = ""
            mark = work "/clean/" $1
            if ($1 in clean) {
                getline options <mark
                close(mark)
            }
            if (options != $2 || newest >= clean[$1] + 0) print
        }
    ' "$work/times" "$work/clean-times" "$work/headers" "$work/sources"
}

list_sources >"$work/sources"
list_headers >"$work/headers"
list_stale >"$work/pending"

[ ! -s "$work/pending" ] || echo "Checking with clang-tidy: $(wc -l <"$work/pending") files"

# A round for all of them, and one more for the files that their batches refused.
round=0
while [ -s "$work/pending" ]; do
    round=$((round + 1))
    sort -t "$tab" -k 2 -k 1,1 "$work/pending" | awk -F "$tab" -v prefix="$work/batches/$round" -v size="$batch_size" '
        $2 != options || ++count > size {
            options = $2
            count = 1
            batch = sprintf("%s.%03d", prefix, ++batches)
            print options >batch
        }
        { print $1 >batch }
    '
    find "$work/batches" -name "$round.???" -print0 | sort -z | xargs -0 -n 1 -P "$(nproc)" scripts/tidy-batch.sh
    find "$work/batches" -name "$round.*.refused" -exec cat {} + >"$work/pending"
done

# A finding in a header comes up in every batch that includes it.
find "$work/batches" -name '*.found' -exec cat {} + | awk '
    /^\/.*: (warning|error): / || !/^[\/ ]/ { shown = !seen[$0]++ }
    shown
' >"$work/found"
cat "$work/found"
[ ! -s "$work/found" ]
