#!/usr/bin/env bash
# full-disk.sh PROGRAMS: runs the tests of full and sealed disks on small file systems of their own, in a namespace
# where nobody else sees them. Ends with 77 where the system does not let it mount any.
set -euo pipefail

root=$(cd "$(dirname "$0")/../.." && pwd)
if [ "${2:-}" != inside ]; then
    # The second way is for one who has all rights and yet may not become another user, as below a changed root.
    for way in "-rm" "-m --propagation unchanged"; do
        if reason=$(unshare $way mount -t tmpfs -o size=256k none /mnt 2>&1); then
            exec unshare $way "$0" "$1" inside
        fi
    done
    echo "Skipped: no file system can be mounted here ($reason)"
    exit 77
fi

# Wine's server opens the files, so one has to run in here: its prefix shares all but the registry with the usual one.
usual=${WINEPREFIX:-$HOME/.wine}
work=$(mktemp -d)
mkdir -p "$work/prefix" "$work/small" "$work/sealed" "$work/odd/real"
cp -a "$usual"/*.reg "$usual"/.update-timestamp "$usual"/dosdevices "$work/prefix"
ln -s "$usual/drive_c" "$work/prefix/drive_c"
export WINEPREFIX=$work/prefix
finish() {
    wineserver -k >/dev/null 2>&1 || true
    wineserver -w >/dev/null 2>&1 || true
    umount "$work/odd/bound.dat" "$work/sealed/bound.dat" "$work/small" "$work/sealed" 2>/dev/null || true
    rm -rf "$work"
}
trap finish EXIT
wineserver -p

mount -t tmpfs -o size=256k none "$work/small"
mount -t tmpfs -o size=256k none "$work/sealed"
disks="Z:${work//\//\\}"
export TESSEL_SMALL_DISK="$disks\\small" TESSEL_SEALED_DISK="$disks\\sealed" TESSEL_ODD_DISK="$disks\\odd"
run="$root/cmake/wine-launcher.sh"
"$run" "$1/Studio.exe" --make-symbols "$TESSEL_SEALED_DISK"
mv "$work/sealed/Fader.cbf" "$work/sealed/page.cbf"
touch "$work/small/bound" "$work/odd/bound.dat" "$work/sealed/bound.dat" "$work/bound" "$work/odd/real/page.dat"
ln -s real/page.dat "$work/odd/link.dat"
mount --bind "$work/small/bound" "$work/odd/bound.dat"
mount -o remount,ro "$work/sealed"
mount --bind "$work/bound" "$work/sealed/bound.dat"
"$run" "$1/FullDisk.exe"
