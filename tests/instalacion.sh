#!/usr/bin/env bash
# The installed tree and the Debian package: the desktop entry and the
# AppStream file validate, every icon is there, Debian's package checker
# finds no error or warning, and the packaged binary starts and ends by
# itself once its window is closed.
#   instalacion.sh BUILD-DIR
set -euo pipefail
build=$(cd "$1" && pwd)
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
id=org.supertirlo.SuperTirlo

cmake --install "$build" --prefix "$scratch/prefix" > /dev/null
share=$scratch/prefix/share
test -x "$scratch/prefix/games/supertirlo"
test -s "$share/man/man6/supertirlo.6.gz"
desktop-file-validate "$share/applications/$id.desktop"
appstreamcli validate --no-net "$share/metainfo/$id.metainfo.xml"
test -s "$share/icons/hicolor/scalable/apps/supertirlo.svg"
for n in 16 32 48 64 128 256; do
    file "$share/icons/hicolor/${n}x${n}/apps/supertirlo.png" | grep -q "PNG image data, $n x $n"
done

cpack --config "$build/CPackConfig.cmake" -B "$scratch/pkg" > /dev/null
deb=$(ls "$scratch"/pkg/*.deb)
dpkg-deb -f "$deb" Depends | grep 'libqt6widgets6' | grep 'qt6-translations-l10n' | grep -q 'fonts-liberation2'
lintian --fail-on error,warning "$deb" 2>&1 | grep -v 'running with root privileges' || true
lintian --fail-on error,warning "$deb" > /dev/null 2>&1
dpkg-deb -x "$deb" "$scratch/root"
binary=$scratch/root/usr/games/supertirlo
test -x "$binary"

# Started on its own display: the language window comes up; Escape closes
# it, and with no window left the program must end with status 0.
cat > "$scratch/sesion.sh" <<SESION
set -eu
QT_QPA_PLATFORM=xcb "$binary" &
game=\$!
for _ in \$(seq 100); do
    id=\$(xdotool search --onlyvisible --name 'idioma' 2> /dev/null | head -n 1) && [ -n "\$id" ] && break
    sleep 0.1
done
[ -n "\$id" ] || { echo 'the language window did not open'; kill \$game; exit 1; }
xdotool windowfocus --sync "\$id"
xdotool key Escape
for _ in \$(seq 50); do kill -0 \$game 2> /dev/null || break; sleep 0.1; done
if kill -0 \$game 2> /dev/null; then echo 'still running after its window closed'; kill \$game; exit 1; fi
wait \$game
SESION
xvfb-run -a -s '-screen 0 1024x768x24 -nolisten tcp' bash "$scratch/sesion.sh"
echo "installed tree, package and packaged binary: fine"
