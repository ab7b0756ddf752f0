#!/usr/bin/env bash
# Runs a command on a private Xvfb, with access control on: only a client
# holding the display's random cookie gets in. The X server picks a free
# display itself and writes its number (-displayfd), so two started at once
# never take the same one. With --gestor, a window manager (openbox) manages
# the screen before the command starts, as on a desktop. Exits with the
# command's status.
#   xvfb.sh [--gestor] COMMAND...
set -euo pipefail
gestor=""
[ "$1" != --gestor ] || { gestor=1; shift; }
dir=$(mktemp -d)
xvfb=""
# Xvfb may be gone already, or end on the signal: its folder goes all the same
# (and the window manager with the server).
trap 'if [ -n "$xvfb" ]; then kill $xvfb 2> /dev/null || true; wait $xvfb 2> /dev/null || true; fi; rm -rf "$dir"' EXIT
cookie=$(od -An -N16 -tx1 /dev/urandom | tr -d ' \n')
# The server takes every cookie in its -auth file, whatever display the
# entry names: the number is not known yet.
: > "$dir/server"
xauth -q -f "$dir/server" add :0 MIT-MAGIC-COOKIE-1 "$cookie"
# There before Xvfb opens it, for the wait below to read from the start.
: > "$dir/display"
# -noreset: otherwise the server resets each time its last client leaves,
# and turns away a client that connects meanwhile (a window manager starting
# while a probe of the screen ends, say).
Xvfb -displayfd 3 -screen 0 1024x768x24 -nolisten tcp -noreset -auth "$dir/server" \
    3>> "$dir/display" > "$dir/log" 2>&1 &
xvfb=$!
# It writes the number, a whole line, once it takes connections.
n=""
for _ in $(seq 600); do
    read -r n < "$dir/display" && break
    n=""
    kill -0 $xvfb 2> /dev/null || { cat "$dir/log" >&2; echo "xvfb.sh: Xvfb ended before giving its display number" >&2; exit 1; }
    sleep 0.05
done
[ -n "$n" ] || { cat "$dir/log" >&2; echo "xvfb.sh: no display number from Xvfb in 30 s" >&2; exit 1; }
: > "$dir/client"
xauth -q -f "$dir/client" add ":$n" MIT-MAGIC-COOKIE-1 "$cookie"
export DISPLAY=:$n XAUTHORITY=$dir/client
if [ -n "$gestor" ]; then
    openbox > "$dir/openbox" 2>&1 &
    # It lists what it supports only once it manages the screen.
    for _ in $(seq 300); do
        xprop -root _NET_SUPPORTED 2> /dev/null | grep -q _NET_ACTIVE_WINDOW && break
        sleep 0.1
    done
    xprop -root _NET_SUPPORTED 2> /dev/null | grep -q _NET_ACTIVE_WINDOW ||
        { cat "$dir/openbox" >&2; echo "xvfb.sh: the window manager not managing in 30 s" >&2; exit 1; }
fi
status=0
"$@" || status=$?
# A failure shows what the X server said too.
[ $status = 0 ] || { echo "xvfb.sh: display :$n, the X server's log:"; cat "$dir/log"; } >&2
exit $status
