#!/usr/bin/env bash
# KDE Plasma's compositor, headless, with its XWayland: the game opens as it
# chooses (or as QT_QPA_PLATFORM says), the level dialog is opened through
# the accessibility bus and minimised as the title bar's button does, and
# what KWin then shows of each window is printed. Not in CTest: KWin brings
# some 140 packages of KDE's (apt-get install kwin-wayland).
#   kwin.sh PROGRAM
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
export XDG_RUNTIME_DIR=$(mktemp -d) PROGRAMA=$(realpath "$1")
trap 'rm -rf "$XDG_RUNTIME_DIR"' EXIT
# The packaged kwin_wayland asks for a capability a container may not grant.
cp /usr/bin/kwin_wayland "$XDG_RUNTIME_DIR/"
cat > "$XDG_RUNTIME_DIR/sesion.sh" <<'SESION'
/usr/libexec/at-spi-bus-launcher --launch-immediately &
KWIN_WAYLAND_NO_PERMISSION_CHECKS=1 "$XDG_RUNTIME_DIR/kwin_wayland" --virtual --width 1024 \
    --height 768 --xwayland --socket tirlo-kwin \
    --exit-with-session "/usr/bin/python3 $HERE/kwin.py" 2> "$XDG_RUNTIME_DIR/kwin.log"
grep -o 'js: .*' "$XDG_RUNTIME_DIR/kwin.log"
SESION
HERE=$here dbus-run-session -- bash "$XDG_RUNTIME_DIR/sesion.sh" 2> /dev/null
