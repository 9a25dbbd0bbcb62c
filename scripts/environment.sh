# Sourced by run and test from the root of the tree: packages, a display, Wine's prefix and one wineserver that is
# kept while the script runs and ended with it.

scripts/packages.sh

export WINEPREFIX="$PWD/build/wine" WINEARCH=win64 WINEDEBUG="${WINEDEBUG:--all}"
headless=no
xvfb_pid=

finish_environment() {
    wineserver -k >/dev/null 2>&1 || true
    [ -z "$xvfb_pid" ] || kill "$xvfb_pid" 2>/dev/null || true
}
trap finish_environment EXIT

if [ -z "${DISPLAY:-}" ] || ! xdpyinfo >/dev/null 2>&1; then
    headless=yes
    display_file=$(mktemp)
    Xvfb -displayfd 3 -screen 0 1400x1000x24 -noreset -nolisten tcp 3>"$display_file" >/dev/null 2>&1 &
    xvfb_pid=$!
    for _ in $(seq 100); do
        [ -s "$display_file" ] && break
        sleep 0.05
    done
    DISPLAY=":$(tr -d '[:space:]' <"$display_file")"
    export DISPLAY
    rm -f "$display_file"
fi

mkdir -p build
scripts/wine-prefix.sh

# Where no window manager runs Wine draws caption and frame itself.
managed=Y
xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id' || managed=N
if [ "$(cat "$WINEPREFIX/.tessel-managed" 2>/dev/null)" != "$managed" ]; then
    wine reg add 'HKCU\Software\Wine\X11 Driver' /v Managed /t REG_SZ /d "$managed" /f >/dev/null 2>&1
    echo "$managed" >"$WINEPREFIX/.tessel-managed"
fi

# on_one_core COMMAND...: runs it with Wine's server on one core. Programs under Wine and the server wait for each other
# all the time; between two cores of a virtual machine that takes several times as long.
on_one_core() {
    local core
    core=$(taskset -cp $$ | sed 's/.*: *\([0-9]*\).*/\1/')
    wineserver -k >/dev/null 2>&1 || true
    taskset -c "$core" wineserver -p
    taskset -c "$core" "$@"
}
