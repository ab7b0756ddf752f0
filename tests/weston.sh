#!/usr/bin/env bash
# Runs a command beside a headless weston, Debian's reference Wayland
# compositor, on a socket and a runtime folder (mode 0700) of its own.
#   weston.sh COMMAND...
set -euo pipefail
XDG_RUNTIME_DIR=$(mktemp -d)
export XDG_RUNTIME_DIR WAYLAND_DISPLAY=tirlo-$$
weston --backend=headless-backend.so --use-pixman --socket="$WAYLAND_DISPLAY" \
    --width=1024 --height=768 --idle-time=0 > "$XDG_RUNTIME_DIR/weston.log" 2>&1 &
weston=$!
trap 'kill $weston 2> /dev/null; wait $weston 2> /dev/null; rm -rf "$XDG_RUNTIME_DIR"' EXIT
for _ in $(seq 200); do
    [ -S "$XDG_RUNTIME_DIR/$WAYLAND_DISPLAY" ] && break
    kill -0 $weston 2> /dev/null || { cat "$XDG_RUNTIME_DIR/weston.log"; exit 1; }
    sleep 0.05
done
[ -S "$XDG_RUNTIME_DIR/$WAYLAND_DISPLAY" ] || { echo "weston: no socket in 10 s" >&2; exit 1; }
# It has no seat: no keyboard, no clipboard, and no input method, whose
# Wayland protocol Qt 6.4 would look for on a seat and crash without. It
# draws with pixman: no GPU buffers for Qt to share with it.
QT_IM_MODULE=none QT_WAYLAND_CLIENT_BUFFER_INTEGRATION=none "$@"
