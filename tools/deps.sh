#!/usr/bin/env bash
# Installs, with apt-get, the Debian packages that one use of the project
# needs and that are missing.
#   deps.sh build | test | bench | shots | windows
set -euo pipefail
build=(build-essential cmake qt6-base-dev qt6-base-private-dev qt6-translations-l10n libgtest-dev libgmock-dev libbenchmark-dev fonts-liberation2)
case "${1:-}" in
    build) wanted=("${build[@]}") ;;
    test) wanted=("${build[@]}" desktop-file-utils appstream dpkg-dev file lintian xvfb xauth xdotool x11-utils openbox dbus at-spi2-core python3-pyatspi orca weston qt6-wayland elfutils) ;;
    bench) wanted=("${build[@]}" libx11-dev xvfb xauth dbus) ;;
    shots) wanted=("${build[@]}" xvfb xauth xdotool x11-utils imagemagick openbox) ;;
    windows) wanted=(cmake ninja-build dpkg-dev qt6-base-dev qt6-translations-l10n googletest
        g++-mingw-w64-x86-64-posix wine wine64 nsis xvfb xauth xdotool x11-utils) ;;
    *) echo "usage: $0 build|test|bench|shots|windows" >&2; exit 2 ;;
esac
missing=()
for pkg in "${wanted[@]}"; do
    dpkg-query -W -f='${Status}' "$pkg" 2>/dev/null | grep -q 'install ok installed' || missing+=("$pkg")
done
[ ${#missing[@]} -eq 0 ] && exit 0
sudo=""
[ "$(id -u)" -eq 0 ] || sudo="sudo"
echo "Installing: ${missing[*]}"
$sudo apt-get -o DPkg::Lock::Timeout=600 update -qq
DEBIAN_FRONTEND=noninteractive $sudo apt-get -o DPkg::Lock::Timeout=600 install -y -qq --no-install-recommends "${missing[@]}"
