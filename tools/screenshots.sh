#!/usr/bin/env bash
# Plays the game as a person would, under a private Xvfb with a window manager:
# the language window, a game by mouse clicks, every dialog through the menu's
# access keys, both languages, then Exit. Saves a screenshot of each step.
#   bash tools/screenshots.sh [output-dir] [scale-factor]
set -euo pipefail
cd "$(dirname "$0")/.."
out=${1:-build/shots}
scale=${2:-1}
bash tools/deps.sh shots
# The session on a display of its own, with the window manager managing
# before the game: a window mapped while it starts up stays unmapped.
[ -n "${TIRLO_XVFB:-}" ] || exec env TIRLO_XVFB=1 bash tests/xvfb.sh --gestor bash tools/screenshots.sh "$out" "$scale"
cmake -S . -B build -DCMAKE_BUILD_TYPE=Release > /dev/null
cmake --build build -j"$(nproc)" --target supertirlo > /dev/null
mkdir -p "$out"

game=""
trap '[ -n "$game" ] && kill "$game" 2> /dev/null || true' EXIT
QT_SCALE_FACTOR=$scale ./build/supertirlo &
game=$!

. tests/x.sh
# Waits for a window whose title matches, gives it the focus, prints its id.
window() {
    local id
    id=$(enfoca "$1" 5) || exit 1
    sleep 0.3
    echo "$id"
}
shot() { sleep 0.4; import -window root "$out/$1.png"; echo "$out/$1.png"; }
keys() { xdotool key --delay 150 "$@"; sleep 0.4; }
# Clicks square k of the main window (row by row from the top left).
square() {
    local id=$1 k=$2 h
    h=$(xdotool getwindowgeometry "$id" | awk -F'[x ]' '/Geometry/ {print $NF}')
    local menu=$((h - 325 * scale))
    xdotool mousemove --window "$id" $(((72 + 80 * (k % 3)) * scale)) $((menu + (85 + 72 * (k / 3)) * scale)) click 1
    sleep 0.3
}

window "Selección de idioma" > /dev/null
shot 01-language-es
keys alt+n
window "Idiom selection" > /dev/null
shot 02-language-en
keys alt+p alt+a
main=$(window "El famoso juego del tirlo")
square "$main" 0
square "$main" 3
shot 03-main-es-game
import -window "$main" "$out/main-window.png" # the picture for the README
keys alt+o
shot 04-menu-es
keys n
window "^Nivel$" > /dev/null
shot 05-level-es
keys Return
main=$(window "El famoso juego del tirlo")
keys alt+o a
window "Acerca" > /dev/null
shot 06-about-es
keys Return
window "El famoso juego del tirlo" > /dev/null
keys alt+o 1
window "Oponentes" > /dev/null
keys alt+p
xdotool type --delay 50 "Ana"
keys alt+s
xdotool type --delay 50 "Beto"
shot 07-opponents-es
keys Return
main=$(window "El famoso juego del tirlo")
square "$main" 4
shot 08-main-es-two-players
keys alt+o l
window "Selección de idioma" > /dev/null
keys alt+n
shot 09-language-from-menu-en
keys alt+o
main=$(window "The tic tac toe")
shot 10-main-en
keys alt+o v
keys alt+o l
window "^Level$" > /dev/null
shot 11-level-en
keys Return
window "The tic tac toe" > /dev/null
keys alt+o a
window "About" > /dev/null
shot 12-about-en
keys Return
window "The tic tac toe" > /dev/null
keys alt+o 1
window "Opponents" > /dev/null
shot 13-opponents-en
keys Escape
window "The tic tac toe" > /dev/null
keys alt+o e
termina "$game" 3 || { echo "the game did not end on Exit in 3 s" >&2; exit 1; }
game=""
echo "Exit ended the game."
