#!/usr/bin/env bash
# use.sh PACKAGE.zip FOLDER: unpacks the package into an empty folder, runs its Studio, and builds and runs its example
# with nothing but what is in it.
set -euo pipefail

package=$(realpath "$1")
sources=$(realpath "$(dirname "$0")/../..")
rm -rf "$2"
mkdir -p "$2"
cd "$2"
cmake -E tar xf "$package"
root=$PWD/$(basename "$package" .zip)
cmake_package=$root/lib/cmake/TesselCtrls

fail() {
    echo "$1"
    exit 1
}
run() { "$cmake_package/wine-launcher.sh" "$@"; }

# As a path of its own: the compiler's DLLs name folders of their makers, which may end like a short path.
pattern="(^|[^[:alnum:]_./-])$(sed 's/[][\.*^$+?(){}|]/\\&/g' <<<"$sources")/"
named=$(LC_ALL=C grep -rlaE "$pattern" "$root" || true)
[ -z "$named" ] || fail "The machine that made the package is named in: $named"
for part in README.md CHANGELOG.md docs/guide.md docs/api/index.html bin/symbols/Fader.cbf; do
    [ -s "$root/$part" ] || fail "The package has no $part."
done

run "$root/bin/Studio.exe" --check "$root/bin/demo.cbf" >check.txt || fail "Studio calls its demo project not sound."
run "$root/bin/Studio.exe" --render "$root/bin/demo.cbf" demo.png || fail "Studio does not draw its demo project."
[ "$(identify -format %k demo.png)" -gt 50 ] || fail "The picture of the demo project is empty."

cmake -S "$root/examples/minimal_host" -B host -G Ninja -DCMAKE_PREFIX_PATH="$root" \
    --toolchain "$cmake_package/mingw-w64-x86_64.cmake"
cmake --build host
run host/MinimalHost.exe --demo page.cbf page.png || fail "The example does not do what it shows."
lamp=$(convert page.png -depth 8 -format '%[hex:u.p{80,80}]' info:)
[ "${lamp:0:6}" = 40E040 ] || fail "The lamp in the example's picture is $lamp."
