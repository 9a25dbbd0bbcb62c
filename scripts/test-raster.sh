#!/usr/bin/env bash
# The tests of raster/, built with the system's compiler and stopped by any bad access or undefined behaviour.
# test-raster.sh --fuzz MINUTES [SEED]: hostile calls instead; needs clang, whose fuzzer makes them. What fails is
# kept in build/raster-fuzz.
set -euo pipefail
cd "$(dirname "$0")/.."

configure() {  # configure FOLDER OPTIONS...: a build tree under build/
    cmake -S raster -B "build/$1" -G Ninja -DCMAKE_BUILD_TYPE=Debug "${@:2}"
}
quietly() {  # quietly NAME COMMAND...: its words only when it fails
    local log="build/$1.log"
    mkdir -p build
    if ! "${@:2}" >"$log" 2>&1; then
        tail -n 60 "$log"
        echo "That failed; the whole log is in $log." >&2
        exit 1
    fi
}

if [ "${1:-}" = --fuzz ]; then
    minutes=${2:?how many minutes}
    seed=${3:-$(shuf -i 1-1000000000 -n 1)}
    flags="-O1 -g -fsanitize=address,undefined -fno-sanitize-recover=all -fsanitize=fuzzer-no-link"
    quietly raster-fuzz configure raster-fuzz -DCMAKE_CXX_COMPILER=clang++ -DCMAKE_CXX_FLAGS="$flags" -DRASTER_FUZZ=ON
    quietly raster-fuzz cmake --build build/raster-fuzz --target FuzzRaster
    echo "Drawing at random for $minutes minutes, seed $seed"
    cd build/raster-fuzz
    mkdir -p corpus
    exec fuzz/FuzzRaster -seed="$seed" -max_total_time=$((minutes * 60)) -timeout=60 -rss_limit_mb=2048 -max_len=1024 \
        -verbosity=0 -print_final_stats=1 corpus
fi

echo "Building and testing raster natively"
flags="-O1 -D_GLIBCXX_ASSERTIONS -fsanitize=address,undefined -fno-sanitize-recover=all"
quietly raster configure raster -DCMAKE_CXX_FLAGS="$flags"
quietly raster cmake --build build/raster
quietly raster ctest --test-dir build/raster --output-on-failure
