#!/usr/bin/env bash
# Every C++ file of the tree must be as clang-format leaves it.
set -euo pipefail

git ls-files -z -- '*.h' '*.cpp' | xargs -0 --no-run-if-empty clang-format --dry-run -Werror
