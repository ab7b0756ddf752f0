#!/usr/bin/env bash
# Runs a command on a private Xvfb, with access control on: only a client
# holding the display's random cookie gets in. The X server picks a free
# display itself and writes its number (-displayfd), so two started at once
# never take the same one. Exits with the command's status.
#   xvfb.sh COMMAND...
set -euo pipefail
dir=$(mktemp -d)
xvfb=""
# Xvfb may be gone already, or end on the signal: its folder goes all the same.
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
status=0
DISPLAY=:$n XAUTHORITY=$dir/client "$@" || status=$?
# A failure shows what the X server said too.
[ $status = 0 ] || { echo "xvfb.sh: display :$n, the X server's log:"; cat "$dir/log"; } >&2
exit $status
