#!/usr/bin/env bash
# The installed tree and the Debian package: the desktop entry and the
# AppStream file validate, every icon is there, and the packaged binary
# starts and ends by itself once its window is closed.
#   instalacion.sh BUILD-DIR
set -euo pipefail
build=$(cd "$1" && pwd)
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
id=org.supertirlo.SuperTirlo

cmake --install "$build" --prefix "$scratch/prefix" > /dev/null
share=$scratch/prefix/share
test -x "$scratch/prefix/bin/supertirlo"
desktop-file-validate "$share/applications/$id.desktop"
appstreamcli validate --no-net "$share/metainfo/$id.metainfo.xml"
test -s "$share/icons/hicolor/scalable/apps/supertirlo.svg"
for n in 16 32 48 64 128 256; do
    file "$share/icons/hicolor/${n}x${n}/apps/supertirlo.png" | grep -q "PNG image data, $n x $n"
done

cpack --config "$build/CPackConfig.cmake" -B "$scratch/pkg" > /dev/null
deb=$(ls "$scratch"/pkg/*.deb)
dpkg-deb -f "$deb" Depends | grep 'libqt6widgets6' | grep -q 'fonts-liberation2'
dpkg-deb -x "$deb" "$scratch/root"
binary=$scratch/root/usr/bin/supertirlo
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
