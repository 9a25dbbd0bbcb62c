#!/usr/bin/env bash
# Installs the Debian packages that building, testing and running need, when one is missing.
set -euo pipefail

packages=(
    g++ g++-mingw-w64-x86-64-posix g++-mingw-w64-i686-posix cmake ninja-build patch googletest doxygen
    python3-scipy
    clang clang-format clang-tidy cppcheck
    wine wine64 fonts-wine fonts-liberation fonts-nanum
    xvfb xdotool x11-utils imagemagick
)

missing=()
for package in "${packages[@]}"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
done
[ ${#missing[@]} -eq 0 ] && exit 0

echo "Installing: ${missing[*]}"
as_root=()
[ "$(id -u)" -eq 0 ] || as_root=(sudo)
export DEBIAN_FRONTEND=noninteractive
log=$(mktemp)
if ! { "${as_root[@]}" apt-get update && "${as_root[@]}" apt-get install -y --no-install-recommends "${missing[@]}"; } >"$log" 2>&1; then
    tail -n 30 "$log"
    echo "The packages could not be installed; the whole log is in $log." >&2
    exit 1
fi
rm -f "$log"
