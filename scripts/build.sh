#!/usr/bin/env bash
# build.sh PRESET [TARGET...]: configures and builds; prints the compiler's words only when something fails.
set -euo pipefail

preset=$1
shift
targets=()
[ $# -eq 0 ] || targets=(--target "$@")
log="build/$preset.log"
mkdir -p build
echo "Building ($preset)"
if ! { cmake --preset "$preset" && cmake --build --preset "$preset" "${targets[@]}"; } >"$log" 2>&1; then
    grep -vE '^\[[0-9]+/[0-9]+\] ' "$log" | tail -n 60
    echo "The build failed; the whole log is in $log." >&2
    exit 1
fi
