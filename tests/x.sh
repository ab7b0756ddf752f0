# What the scripts that drive the game's windows share (on an X display,
# save the waits); sourced. Every wait has a bound and says what it waited for.

# espera TRIES PAUSE COMMAND...: the command tried until it holds, at most
# TRIES times, PAUSE seconds apart; status 1 if it never did.
espera() {
    local n=$1 pausa=$2
    shift 2
    for _ in $(seq "$n"); do "$@" && return; sleep "$pausa"; done
    return 1
}

# mira TITLE: one look for a window on screen whose title matches TITLE: its
# id in $id, what xdotool said in $salida. One search a look, as xdotool ends
# on the X error it meets when a window goes while it looks (Wine makes and
# drops many as it starts), so its --sync cannot be the wait.
mira() {
    salida=$(timeout 5 xdotool search --onlyvisible --name "$1" 2>&1) || true
    id=$(grep -m 1 -x '[0-9]\+' <<< "$salida")
}

# ventana TITLE [SECONDS]: the id of the first window on screen whose title
# matches TITLE, waited for at most SECONDS (10 by default).
ventana() {
    local salida id
    espera $((${2:-10} * 10)) 0.1 mira "$1" ||
        { echo "no window /$1/ in ${2:-10} s${salida:+; xdotool: $salida}" >&2; return 1; }
    echo "$id"
}

# enfoca TITLE [SECONDS]: that window, once the window manager has given it
# the keys; prints its id.
enfoca() {
    local id
    id=$(ventana "$@") || return 1
    timeout 10 xdotool windowactivate --sync "$id" > /dev/null ||
        { echo "window /$1/ not given the keys in 10 s" >&2; return 1; }
    echo "$id"
}

# termina PID SECONDS [FILE]: true once the process has ended, waiting at
# most SECONDS, meanwhile showing FILE as it grows.
termina() {
    timeout "$2" tail -s 0.1 --pid="$1" -f "${3:-/dev/null}"
}
