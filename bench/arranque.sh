#!/usr/bin/env bash
# Start-up and idle cost of the game against the floor: the smallest Qt Widgets
# program of the same shape. Each is started RUNS times (default 9, alternating)
# on a private Xvfb; the medians of the time from exec to the first window
# being mapped, the CPU used by then, the peak RSS, and the CPU used over five
# idle seconds (from one second after the map) are printed with the ratios to
# the floor. Inside a D-Bus session, as on a desktop, where Qt asks whether
# assistive technology is running.
# With WINDOWS-BUILD, the two as built for Windows there, run under Wine (as
# tools/windows.sh runs them, with its Wine settings).
#   bash bench/arranque.sh [RUNS [WINDOWS-BUILD]]
set -euo pipefail
cd "$(dirname "$0")/.."
runs=${1:-9}
windows=${2:-}
bash tools/deps.sh bench
[ -n "${DBUS_SESSION_BUS_ADDRESS:-}" ] || exec dbus-run-session -- bash bench/arranque.sh "$@"
[ -n "${TIRLO_XVFB:-}" ] || exec env TIRLO_XVFB=1 bash tests/xvfb.sh bash bench/arranque.sh "$@"
cmake -S . -B build -DCMAKE_BUILD_TYPE=Release > /dev/null
cmake --build build -j"$(nproc)" --target supertirlo minimo mapeo > /dev/null

unset QT_QPA_PLATFORM QT_SCALE_FACTOR
minimo=(./build/bench/minimo)
supertirlo=(./build/supertirlo)
[ -z "$windows" ] || { minimo=(wine "$windows/minimo.exe"); supertirlo=(wine "$windows/supertirlo.exe"); }

out=$(mktemp -d)
for i in $(seq "$runs"); do
    ./build/bench/mapeo "${minimo[@]}" >> "$out/minimo"
    ./build/bench/mapeo "${supertirlo[@]}" >> "$out/supertirlo"
    printf '.' >&2
done
echo >&2

median() { sort -n | awk '{v[NR] = $1} END {print (NR % 2) ? v[(NR + 1) / 2] : (v[NR / 2] + v[NR / 2 + 1]) / 2}'; }
col() { awk -v c="$2" '{print $c}' "$out/$1" | median; }
printf '%-12s %10s %10s %12s %12s\n' program map_ms cpu_ms peak_rss_kb idle_cpu_ms
for p in minimo supertirlo; do
    printf '%-12s %10s %10s %12s %12s\n' "$p" "$(col $p 1)" "$(col $p 2)" "$(col $p 3)" "$(col $p 4)"
done
awk -v a="$(col supertirlo 1)" -v b="$(col minimo 1)" -v c="$(col supertirlo 3)" -v d="$(col minimo 3)" \
    -v e="$(col supertirlo 4)" -v f="$(col supertirlo 2)" -v g="$(col minimo 2)" 'BEGIN {
    printf "start-up %.2fx the floor (target 0.9x), CPU until mapped %.2fx, peak RSS %.2fx (target 1.1x), idle CPU %s ms in 5 s (target 0)\n", a / b, f / g, c / d, e }'
rm -rf "$out"
