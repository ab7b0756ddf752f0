#!/usr/bin/env bash
# Runs teclado.py on a private X display with a window manager, inside its
# own D-Bus session with the accessibility bus up and the Orca screen reader
# running, as a desktop would.
#   teclado.sh PROGRAM
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
if [ "${2:-}" != --sesion ]; then
    # Orca will not start beside another Orca of the same user on the machine,
    # which it finds by process name: where it can, the session has a process
    # namespace of its own, so that two sessions run at once, and an Orca that
    # outlives its session goes with the namespace.
    solo=(unshare --pid --fork --mount-proc)
    [ "$(id -u)" = 0 ] || solo=(unshare --user --map-root-user --pid --fork --mount-proc)
    "${solo[@]}" true 2> /dev/null || { echo "teclado.sh: no process namespace of its own here" >&2; solo=(); }
    # The window manager managing first, so that new windows get the focus.
    exec bash "$here/xvfb.sh" --gestor "${solo[@]}" dbus-run-session -- \
        bash "$here/teclado.sh" "$(realpath "$1")" --sesion
fi

# The session itself.
. "$here/x.sh"
sesion=$(mktemp -d)
trap 'rm -rf "$sesion"' EXIT
# Settings of this session's own: Orca's, and those it keeps in dconf.
export XDG_DATA_HOME="$sesion/data" XDG_CONFIG_HOME="$sesion/config"
# The accessibility bus started (asking for its address does) before the
# game; it may take seconds on a loaded machine. Each try waits at most a
# second for the answer.
bus() {
    dbus-send --session --print-reply --reply-timeout=1000 --dest=org.a11y.Bus /org/a11y/bus \
        org.a11y.Bus.GetAddress > /dev/null 2>&1
}
espera 30 1 bus || { echo "no accessibility bus after 30 tries a second apart"; exit 1; }
# Orca, the desktop's screen reader, writes all it would say into its debug
# file; through a terminal (script) it writes each line as it comes. It finds
# no speech server here, and says all the same (with speech off, Orca 48
# would not say a notification at all). Not --replace: that leaves an alarm
# set whose handler, two seconds on, writes to the debug file; landing in the
# middle of a write, it broke off what Orca was presenting (once in about 50
# sessions on a loaded machine).
script -qfc "orca --debug-file /dev/stdout" "$sesion/orca" > /dev/null 2>&1 &
orca=$!
espera 300 0.1 grep -qs "Screen reader on" "$sesion/orca" ||
    { tail -n 30 "$sesion/orca"; echo "Orca not on in 30 s"; exit 1; }
status=0
/usr/bin/python3 "$here/teclado.py" "$1" "$sesion/orca" 2> "$sesion/fallo" || status=$?
if [ $status != 0 ]; then
    # Orca's own account of the windows and notifications it took or
    # dropped, and why; then what failed, last, where the end of the
    # output shows it.
    grep -aE 'Dequeued (window:|object:state-changed:showing.*notification)|obsoleted|Not processing|defunct|active script to|Exception processing' \
        "$sesion/orca" | cut -c 1-220 | tail -n 40 || true
    cat "$sesion/fallo"
fi
kill $orca 2> /dev/null || true
exit $status
