#!/usr/bin/env bash
# Every C++ file of the tree must be as clang-format leaves it.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/has-version.sh clang-format 14 || exit 0

find . -path ./build -prune -o -path ./.git -prune -o \( -name '*.h' -o -name '*.cpp' \) -print0 |
    xargs -0 clang-format --dry-run -Werror
