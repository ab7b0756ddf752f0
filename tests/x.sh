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

# ventana TITLE [SECONDS]: the id of the first window on screen whose title
# matches TITLE, waited for at most SECONDS (10 by default).
ventana() {
    local id
    id=$(timeout "${2:-10}" xdotool search --sync --onlyvisible --name "$1" | head -n 1) &&
        [ -n "$id" ] || { echo "no window /$1/ in ${2:-10} s" >&2; return 1; }
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
