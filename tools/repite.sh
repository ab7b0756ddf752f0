#!/usr/bin/env bash
# Runs the slow tests ROUNDS times, two at a time as the suite runs them,
# beside two busy processes (a loaded machine), then tables each test's
# rounds and failures, with the last lines each failure wrote. Status 1 if
# any test failed or did not run. CTest's TIMEOUT of each test bounds it.
#   bash tools/repite.sh [ROUNDS] [BUILD-DIR]
set -euo pipefail
rounds=${1:-20}
build=${2:-build}
tests='^(teclado|instalacion|ventanas_wayland|ventanas_escala_1\.5|ventanas_escala_2)$'
n=$(ctest --test-dir "$build" -N -R "$tests" | sed -n 's/^Total Tests: //p' || true)
[ "${n:-0}" -gt 0 ] || { echo "no slow tests in '$build': build it first" >&2; exit 1; }
logs=$(mktemp -d -t repite.XXXXXX)
: > "$logs/failed"
busy=()
trap '[ ${#busy[@]} = 0 ] || kill "${busy[@]}" 2> /dev/null || true' EXIT
for _ in 1 2; do sh -c 'while :; do :; done' & busy+=($!); done
export QT_QPA_PLATFORM=offscreen
for r in $(seq "$rounds"); do
    # A failed round does not end the run: the table tells it.
    ctest --test-dir "$build" -j2 -R "$tests" > "$logs/$r.log" 2>&1 || true
    cp "$build/Testing/Temporary/LastTest.log" "$logs/$r.output"
    ran=$(grep -c '^ *[0-9]*/[0-9]* Test' "$logs/$r.log" || true)
    [ "$ran" = "$n" ] || echo "CTest $r ran $ran of $n tests" >> "$logs/failed"
    echo "round $r of $rounds: $ran tests, $(grep -c '^ *[0-9]*/[0-9]* Test.*\*\*\*' "$logs/$r.log") failed" >&2
done
# CTest's result lines read "1/5 Test #14: teclado .....***Failed   19.13 sec".
printf '%-22s %6s %8s\n' test rounds failures
awk -v list="$logs/failed" '$1 ~ /^[0-9]+\/[0-9]+$/ && $2 == "Test" { t = $4; runs[t]++
        if (sub(/.*\*\*\*/, "")) { fails[t]++; r = FILENAME; sub(/.*\//, "", r); print t, r + 0, $0 >> list } }
    END { for (t in runs) printf "%-22s %6d %8d\n", t, runs[t], fails[t] }' \
    $(seq -f "$logs/%g.log" "$rounds") | sort
while read -r t r why; do
    echo; echo "$t, round $r: $why"
    # The test's last lines, from CTest's full log of that round.
    awk -v t="$t" '/^[0-9]+\/[0-9]+ Test: / { on = substr($0, index($0, ": ") + 2) == t; out = 0; next }
        on && /^<end of output>$/ { on = 0 } on && out { print "    " $0 } on && /^-+$/ { out = 1 }' \
        "$logs/$r.output" | tail -n 15
done < "$logs/failed"
echo; echo "per-round logs in $logs"
[ ! -s "$logs/failed" ]
