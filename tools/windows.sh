#!/usr/bin/env bash
# Builds the game for 64-bit Windows with Debian's MinGW-w64, runs its tests
# under Wine and makes its installer, all from Debian's archive. Qt for
# Windows is built once from Debian's own source of the host's Qt (whose tools
# the cross build uses) and kept under CACHE; it is built again only when that
# source or the way it is built changes.
#   windows.sh
set -euo pipefail
cd "$(dirname "$0")/.."
bash tools/deps.sh windows
cache=${CACHE:-/var/tmp/supertirlo-windows}
toolchain=$PWD/tools/mingw.cmake
sudo=""
[ "$(id -u)" -eq 0 ] || sudo="sudo"
took() { printf 'windows.sh: %s took %d s\n' "$1" $((SECONDS - $2)); }

# Qt's parts the game uses (Core, Gui, Widgets, Test), the windows platform,
# the Windows styles and DirectWrite; its own zlib, PCRE2, HarfBuzz and libpng.
# Wacom's tablet header is not in Debian's source: tablets reach the game as
# the mouse they also are.
qt_options=(-DCMAKE_BUILD_TYPE=Release -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF
    -DQT_QMAKE_TARGET_MKSPEC=win32-g++ -DFEATURE_tabletevent=OFF
    -DFEATURE_sql=OFF -DFEATURE_network=OFF -DFEATURE_dbus=OFF -DFEATURE_opengl=OFF
    -DFEATURE_dynamicgl=OFF
    -DFEATURE_printsupport=OFF -DFEATURE_vulkan=OFF -DFEATURE_concurrent=OFF
    -DFEATURE_xml=OFF -DFEATURE_jpeg=OFF -DFEATURE_gif=OFF -DFEATURE_ico=OFF
    -DFEATURE_freetype=OFF -DFEATURE_zstd=OFF -DFEATURE_system_zlib=OFF -DFEATURE_system_pcre2=OFF
    -DFEATURE_system_harfbuzz=OFF -DFEATURE_system_png=OFF)
source_version=$(dpkg-query -W -f='${source:Version}' qt6-base-dev)
key=$(printf '%s\n' "$source_version" "${qt_options[@]}" | cat - "$toolchain" | sha256sum | cut -c1-12)
qt=$cache/qt-$key

build_qt() {
    local start=$SECONDS work=$cache/work
    rm -rf "$work" "$qt"
    mkdir -p "$work"
    # apt-get source needs the archive's deb-src entries: the machine's own
    # entries, as deb-src, where it has none.
    if ! apt-cache showsrc qt6-base 2> /dev/null | grep -qx "Version: $source_version"; then
        local list=/etc/apt/sources.list.d/supertirlo-src
        [ -f /etc/apt/sources.list.d/debian.sources ] &&
            sed 's/^Types:.*/Types: deb-src/' /etc/apt/sources.list.d/debian.sources | $sudo tee $list.sources > /dev/null
        [ -f /etc/apt/sources.list ] &&
            sed -n 's/^deb /deb-src /p' /etc/apt/sources.list | $sudo tee $list.list > /dev/null
        $sudo apt-get -o DPkg::Lock::Timeout=600 update -qq
    fi
    (cd "$work" && apt-get source -qq "qt6-base=$source_version")
    cmake -G Ninja -S "$work"/qt6-base-*/ -B "$work/build" -DCMAKE_TOOLCHAIN_FILE="$toolchain" \
        -DQT_HOST_PATH=/usr -DQT_HOST_PATH_CMAKE_DIR=/usr/lib/x86_64-linux-gnu/cmake \
        -DCMAKE_INSTALL_PREFIX="$qt" "${qt_options[@]}" > "$work/configure.log"
    cmake --build "$work/build" > "$work/build.log" 2>&1 || { tail -40 "$work/build.log"; exit 1; }
    cmake --install "$work/build" > /dev/null
    # GoogleTest for the tests, from Debian's source of it.
    cmake -G Ninja -S /usr/src/googletest -B "$work/gtest" -DCMAKE_TOOLCHAIN_FILE="$toolchain" \
        -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX="$qt" > /dev/null
    cmake --build "$work/gtest" > /dev/null
    cmake --install "$work/gtest" > /dev/null
    rm -rf "$work"
    touch "$qt/hecho" # whole: a build cut short is made again
    took "Qt $source_version for Windows" $start
}
[ -f "$qt/hecho" ] || build_qt

# The rest on a private X display under a window manager, as Wine's programs
# show windows.
[ -n "${TIRLO_XVFB:-}" ] || exec env TIRLO_XVFB=1 bash tests/xvfb.sh --gestor bash tools/windows.sh

# A Wine prefix of the build's own; the programs built find Qt's and the
# compiler's libraries on WINEPATH while they run from the build tree.
build=$PWD/build-windows
windows_path() { local p; p=$(realpath "$1"); printf 'Z:%s' "${p//\//\\}"; }
runtime=$(x86_64-w64-mingw32-g++-posix -print-file-name=libstdc++-6.dll)
pthread=$(x86_64-w64-mingw32-g++-posix -print-file-name=libwinpthread-1.dll)
# Wine's errors only: a test that cannot load a library, say, would
# otherwise fail at once with no word.
export WINEPREFIX=$build/wine WINEDEBUG=-all,err+all WINEDLLOVERRIDES="mscoree,mshtml="
export WINEPATH="$(windows_path "$qt/bin");$(windows_path "${runtime%/*}");$(windows_path "${pthread%/*}")"
unset QT_QPA_PLATFORM QT_SCALE_FACTOR
mkdir -p "$build"
[ -d "$WINEPREFIX" ] || { wineboot -i > /dev/null 2>&1; wineserver -w; }
# One Wine session for the build's and the tests' programs, as on a Windows
# desktop. Debian's Wine server ends with its last program (-p0), so each
# program would otherwise start the server and its services anew while the
# last one's were still shutting down; one started in that moment may end at
# once, or find no service manager. The session's services keep the output
# of the program that starts them: it goes nowhere, not to a test's log.
wineserver -p
trap 'wineserver -k' EXIT
wineboot < /dev/null > /dev/null 2>&1

start=$SECONDS
cmake -G Ninja -S . -B "$build" -DCMAKE_BUILD_TYPE=Release \
    -DCMAKE_TOOLCHAIN_FILE="$qt/lib/cmake/Qt6/qt.toolchain.cmake" \
    -DQT_CHAINLOAD_TOOLCHAIN_FILE="$toolchain" -DCMAKE_CROSSCOMPILING_EMULATOR=wine > /dev/null
cmake --build "$build"
took "the game and its tests" $start
start=$SECONDS
(cd "$build" && cpack -G NSIS > /dev/null)
took "the installer ($(du -k "$build"/SuperTirlo-*-win64.exe | cut -f1) kB)" $start
start=$SECONDS
ctest --test-dir "$build" --output-on-failure
took "the tests under Wine" $start
