#!/usr/bin/env bash
# Runs a command beside a headless weston, Debian's reference Wayland
# compositor, on a socket and a runtime folder (mode 0700) of its own.
#   weston.sh COMMAND...
#   weston.sh --gtest PROGRAM FILTER    GoogleTest's cases; see the end
set -euo pipefail
. "$(dirname "$0")/x.sh"
XDG_RUNTIME_DIR=$(mktemp -d)
export XDG_RUNTIME_DIR WAYLAND_DISPLAY=tirlo-$$
weston --backend=headless-backend.so --use-pixman --socket="$WAYLAND_DISPLAY" \
    --width=1024 --height=768 --idle-time=0 > "$XDG_RUNTIME_DIR/weston.log" 2>&1 &
weston=$!
# Waits up to SECONDS for a process of this shell to end, for its status,
# showing FILE as it grows; one still running then shows its threads'
# stacks and is killed (status 124).
acaba() { # WHAT PID SECONDS [FILE]
    termina "$2" "$3" "${4:-}" && { wait "$2"; return; }
    echo "weston.sh: $1 still running $3 s on; its threads:"
    eu-stack -p "$2" || true
    kill -9 "$2"
    return 124
}
fin() {
    local status=$? # the script's, unless the compositor hangs as it ends
    kill $weston 2> /dev/null
    acaba weston $weston 10 || [ $? != 124 ] || status=124
    rm -rf "$XDG_RUNTIME_DIR"
    exit $status
}
trap fin EXIT
for _ in $(seq 200); do
    [ -S "$XDG_RUNTIME_DIR/$WAYLAND_DISPLAY" ] && break
    kill -0 $weston 2> /dev/null || { cat "$XDG_RUNTIME_DIR/weston.log"; exit 1; }
    sleep 0.05
done
[ -S "$XDG_RUNTIME_DIR/$WAYLAND_DISPLAY" ] || { echo "weston: no socket in 10 s" >&2; exit 1; }
# It has no seat: no keyboard, no clipboard, and no input method, whose
# Wayland protocol Qt 6.4 would look for on a seat and crash without. It
# draws with pixman: no GPU buffers for Qt to share with it.
export QT_IM_MODULE=none QT_WAYLAND_CLIENT_BUFFER_INTEGRATION=none
[ "$1" = --gtest ] || { "$@"; exit; }

# Qt's Wayland client before 6.8 (6.4.2 has it, 6.8.2 not) destroys a
# window's last frame callback on two threads at once when the window hides
# just as the compositor answers that frame: its hide on the program's
# thread, and the answer on Qt's frame thread, which then aborts in
# libwayland. There the case it ends is left out, said in one line, and the
# cases not yet run go on in a new process; any other end counts as usual.
programa=$2 filtro=$3 fuera="" fallos=0
salida=$XDG_RUNTIME_DIR/salida
anterior() { [ "$(printf '%s\n' "$TIRLO_QT_VERSION" 6.8 | sort -V | head -n 1)" != 6.8 ]; }
while :; do
    status=0
    : > "$salida"
    "$programa" "--gtest_filter=$filtro${fuera:+-${fuera#:}}" > "$salida" 2>&1 &
    acaba "the client" $! 60 "$salida" || status=$?
    grep -q '^\[  FAILED  \]' "$salida" && fallos=1
    [ $status != 0 ] && anterior && grep -q "wl_proxy_unref: Assertion .proxy->refcount > 0' failed" "$salida" ||
        exit $((status ? status : fallos))
    hechos=$(sed -n 's/^\[ *\(OK\|FAILED\) *\] \([^ ]*\).*/\2/p' "$salida")
    caso=$(sed -n 's/^\[ RUN      \] //p' "$salida" | tail -n 1)
    grep -qxF "$caso" <<< "$hechos" && caso="the end, after $caso"
    echo "weston.sh: left out $caso: Qt $TIRLO_QT_VERSION's Wayland client destroyed a frame callback on two threads at once (fixed by Qt 6.8)"
    fuera+=$(printf ':%s' "$caso" $hechos)
done
