#!/usr/bin/env bash
# try-on.sh [--again] SUITE [COMMAND...]: what somebody meets who has a new Debian of that suite and nothing else. Makes
# such a system in build/try, clones the last commit into it and runs ./run and ./test there as root, or only COMMAND.
# With --again the system is the one that the last try left, with what it installed and built.
#
# Needs root. Everything runs in a mount and process space of its own: however it ends, nothing stays mounted or running.
# Packages come from the mirror that this machine's apt uses, or from $MIRROR.
set -euo pipefail
cd "$(dirname "$0")/.."

usage() {
    echo "usage: scripts/try-on.sh [--again] SUITE [COMMAND...]" >&2
    exit 2
}

if [ "${1:-}" != --inside ]; then
    [ "$(id -u)" -eq 0 ] || { echo "scripts/try-on.sh needs root." >&2 && exit 2; }
    command -v debootstrap >/dev/null || { apt-get update && apt-get install -y debootstrap; } >/dev/null
    exec unshare --mount --pid --fork --kill-child scripts/try-on.sh --inside "$@"
fi
shift
trap 'exit 130' INT
trap 'exit 143' TERM

again=no
[ "${1:-}" != --again ] || { again=yes && shift; }
suite=${1:-}
[[ $suite =~ ^[a-z]+$ ]] || usage
shift
system="$PWD/build/try/$suite"
base="$system.tar"
tree=root/tesselctrls

# The archive itself, not the one of security updates, whose label differs.
mirror() {
    [ -z "${MIRROR:-}" ] || { echo "$MIRROR" && return; }
    apt-get indextargets --format '$(REPO_URI)' 'Created-By: Packages' 'Label: Debian' | grep '^http' | head -n 1
}

make_base() {
    local from
    from=$(mirror) || { echo "apt names no mirror here (apt-get update helps, or MIRROR=...)" >&2 && exit 2; }
    echo "Making a new Debian $suite"
    rm -rf "$system.new" "$base.new"
    mkdir -p "$system.new"
    if ! debootstrap --variant=minbase "$suite" "$system.new" "$from" >"$system.log" 2>&1; then
        tail -n 10 "$system.log" >&2
        echo "debootstrap failed; its words are in $system.log." >&2
        exit 1
    fi
    umount -q "$system.new/proc" "$system.new/sys" || true
    tar -C "$system.new" -cf "$base.new" .
    rm -rf "$system.new"
    mv "$base.new" "$base"
}

inside() { # inside COMMAND...: in the clone, with nothing of this machine's environment
    env -i HOME=/root PATH=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin "TERM=${TERM:-dumb}" \
        "${proxies[@]}" chroot "$system" sh -c "cd /$tree && exec \"\$@\"" sh "$@" </dev/null
}

# Programs outside apt know its proxy only from the environment.
proxies=()
proxy=$(apt-config dump --format '%v' Acquire::http::Proxy)
[ -z "$proxy" ] || export http_proxy=$proxy
for name in http_proxy https_proxy no_proxy; do
    [ -z "${!name:-}" ] || proxies+=("$name=${!name}")
done

mkdir -p build/try
if [ "$again" = no ] || [ ! -d "$system" ]; then
    [ -f "$base" ] || make_base
    rm -rf "$system"
    mkdir "$system"
    tar -C "$system" -xf "$base"
    git clone --quiet --no-hardlinks . "$system/$tree"
else
    git -C "$system/$tree" fetch --quiet "$PWD" HEAD
    git -C "$system/$tree" reset --quiet --hard FETCH_HEAD
fi
cp -L /etc/resolv.conf "$system/etc/resolv.conf"
mount -t proc proc "$system/proc"
mount -t sysfs -o ro sysfs "$system/sys"
mount --rbind /dev "$system/dev"

commit=$(git -C "$system/$tree" rev-parse --short HEAD)
failed=0
try() {
    local started=$SECONDS code=0 result=passed
    inside "$@" || code=$?
    [ "$code" = 0 ] || { result="failed with $code" && failed=1; }
    echo "Debian $suite, $commit: $* $result after $((SECONDS - started)) s"
}

if [ $# -gt 0 ]; then
    try "$@"
else
    try ./run
    try ./test
fi
exit "$failed"
