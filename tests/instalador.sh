#!/usr/bin/env bash
# The Windows installer as a Windows user meets it, under Wine on the test's
# X display, in a Wine prefix of its own: a silent install with the Start-menu
# entry and the entry in the list of installed programs; the installed game
# started by keys in Spanish and ended with Alt+F4, then in English and ended
# from its menu, loading exactly the libraries installed with it; a silent
# uninstall that leaves nothing behind.
#   instalador.sh BUILD-DIR
set -euo pipefail
installer=$(ls "$1"/SuperTirlo-*-win64.exe)
WINEPREFIX=$(mktemp -d)
export WINEPREFIX WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml="
unset WINEPATH # the game finds what it loads in its own folder, or not at all
trap 'wineserver -k 2> /dev/null || true; rm -rf "$WINEPREFIX"' EXIT
fail() { echo "instalador.sh: $*" >&2; exit 1; }
. "$(dirname "$0")/x.sh"
# Debian's Wine server ends with its last program (-p0): each program here
# starts once the last one's session has ended, not while it shuts down.
wine() { wineserver -w; command wine "$@"; }
wineboot -i > /dev/null 2>&1

c=$WINEPREFIX/drive_c
dir="$c/Program Files/Super Tirlo"
menu="$c/ProgramData/Microsoft/Windows/Start Menu/Programs/Super Tirlo"
key='HKLM\Software\Microsoft\Windows\CurrentVersion\Uninstall\Super Tirlo'
start=$SECONDS
wine "$installer" /S
wineserver -w
echo "instalador.sh: silent install in $((SECONDS - start)) s, $(du -sk "$dir" | cut -f1) kB installed"
[ -f "$dir/supertirlo.exe" ] || fail "no supertirlo.exe in $dir"
[ -f "$menu/Super Tirlo.lnk" ] || fail "no Start-menu entry $menu/Super Tirlo.lnk"
registro=$(wine reg query "$key" | tr -d '\r')
for valor in 'DisplayName +REG_SZ +Super Tirlo$' 'DisplayVersion +REG_SZ +1\.0\.0$' \
    'Publisher +REG_SZ +Super Tirlo team$' 'DisplayIcon +REG_SZ +C:\\Program Files\\Super Tirlo\\supertirlo\.exe$'; do
    grep -Eq "$valor" <<< "$registro" || fail "the uninstall key lacks /$valor/: $registro"
done

# Plays a start of the installed game: LANGUAGE-KEYS choose on the language
# window, the main window must be TITLE, END-KEYS must end the game.
juega() {
    local idioma=$1 titulo=$2 fin=$3 pid
    WINEDEBUG=+loaddll wine "$dir/supertirlo.exe" 2> "$WINEPREFIX/cargas" &
    pid=$!
    enfoca '^Selección de idioma$' 60 > /dev/null || exit 1
    xdotool key --delay 200 $idioma
    enfoca "^$titulo\$" 20 > /dev/null || exit 1
    xdotool key --delay 200 $fin
    termina $pid 20 || fail "the game still running 20 s after $fin"
    wait $pid || fail "the game ended with status $? after $fin"
}
juega alt+a 'El famoso juego del tirlo \(Nivel 3\)' alt+F4
juega 'alt+n alt+o' 'The tic tac toe \(Level 3\)' 'alt+o e'
# Every library the game loaded from outside Windows is one installed with it,
# and each one installed was loaded.
cargadas=$(grep -io 'Loaded L"[^"]*\.dll"' "$WINEPREFIX/cargas" | grep -iv 'windows\\\\system32' |
    sed 's/.*\\//; s/"$//' | sort -fu)
instaladas=$(find "$dir" -iname '*.dll' -printf '%f\n' | sort -fu)
[ "$cargadas" = "$instaladas" ] ||
    fail "loaded (<) and installed (>) libraries differ: $(diff <(echo "$cargadas") <(echo "$instaladas") || true)"

# The uninstaller runs from a copy of itself: done when the folder is gone.
wine "$dir/Uninstall.exe" /S
espera 300 0.1 test ! -e "$dir" || true # said below
wineserver -w
[ ! -e "$dir" ] || fail "still installed 30 s after the uninstaller: $(find "$dir")"
[ ! -e "$menu" ] || fail "the Start-menu entry is left: $(find "$menu")"
! wine reg query "$key" > /dev/null 2>&1 || fail "the uninstall key is left"
echo "instalador.sh: installed, played in both languages and removed"
