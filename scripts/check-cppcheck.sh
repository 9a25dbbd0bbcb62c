#!/usr/bin/env bash
# cppcheck over every source file of the tree. What has not changed since the last run is remembered in build/cppcheck.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/has-version.sh cppcheck 2.10 || exit 0

mkdir -p build/cppcheck
find . -path ./build -prune -o -name '*.cpp' -printf '%P\n' | sort >build/cppcheck.files
echo "Checking with cppcheck"
cppcheck --quiet --error-exitcode=1 -j "$(nproc)" --cppcheck-build-dir=build/cppcheck --file-list=build/cppcheck.files \
    --enable=warning,performance,portability --suppressions-list=scripts/cppcheck.suppressions \
    --std=c++20 --platform=win64 --library=windows --library=mfc --library=googletest --library=scripts/cppcheck.cfg \
    -DUNICODE -D_UNICODE -D_WIN32 -D_WIN64 -D__MINGW32__ -D_WIN32_WINNT=0x0601 \
    -I. -Iafx/include -Imarrowlog/include -Itests
