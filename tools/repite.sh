#!/usr/bin/env bash
# Runs the slow tests ROUNDS times in each build, as the test command runs
# them (two at a time; the sanitizer build with its settings), beside two busy
# processes (a loaded machine), then tables each test's rounds and failures,
# with the last lines each failure wrote. Status 1 if any test failed or did
# not run. CTest's TIMEOUT of each test bounds it.
#   bash tools/repite.sh [ROUNDS] [BUILD-DIR...]   (default: build build-asan)
set -euo pipefail
cd "$(dirname "$0")/.."
rounds=${1:-20}
shift || true
builds=("$@")
[ ${#builds[@]} -gt 0 ] || builds=(build build-asan)
tests='^(teclado|instalacion|memoria|ventanas_wayland|ventanas_escala_1\.5|ventanas_escala_2)$'
logs=$(mktemp -d -t repite.XXXXXX)
: > "$logs/failed"
for b in "${builds[@]}"; do
    n=$(ctest --test-dir "$b" -N -R "$tests" | sed -n 's/^Total Tests: //p' || true)
    [ "${n:-0}" -gt 0 ] || { echo "no slow tests in '$b': build it first (bash tools/test.sh)" >&2; exit 1; }
    mkdir "$logs/$b"
    echo "$n" > "$logs/$b/count"
done
busy=()
trap '[ ${#busy[@]} = 0 ] || kill "${busy[@]}" 2> /dev/null || true' EXIT
for _ in 1 2; do sh -c 'while :; do :; done' & busy+=($!); done
export QT_QPA_PLATFORM=offscreen
for r in $(seq "$rounds"); do
    for b in "${builds[@]}"; do
        (
            if grep -qx 'TIRLO_SANITIZE:BOOL=ON' "$b/CMakeCache.txt"; then
                set -a
                . tools/sanitizers.env
            fi
            # A failed round does not end the run: the table tells it.
            ctest --test-dir "$b" -j2 -R "$tests" > "$logs/$b/$r.log" 2>&1 || true
        )
        cp "$b/Testing/Temporary/LastTest.log" "$logs/$b/$r.output"
        ran=$(grep -c '^ *[0-9]*/[0-9]* Test' "$logs/$b/$r.log" || true)
        [ "$ran" = "$(cat "$logs/$b/count")" ] || echo "$b/CTest $r ran $ran tests" >> "$logs/failed"
        echo "round $r of $rounds, $b: $ran tests, $(grep -c '^ *[0-9]*/[0-9]* Test.*\*\*\*' "$logs/$b/$r.log") failed" >&2
    done
done
# CTest's result lines read "1/5 Test #14: teclado .....***Failed   19.13 sec".
printf '%-33s %6s %8s %9s\n' test rounds failures left-out
for b in "${builds[@]}"; do
    awk -v b="$b" -v list="$logs/failed" '$1 ~ /^[0-9]+\/[0-9]+$/ && $2 == "Test" { t = b "/" $4; runs[t]++
            if (sub(/.*\*\*\*/, "")) { fails[t]++; r = FILENAME; sub(/.*\//, "", r); print t, r + 0, $0 >> list } }
        /^weston.sh: left out / { fuera[b "/ventanas_wayland"]++ }
        END { for (t in runs) printf "%-33s %6d %8d %9d\n", t, runs[t], fails[t], fuera[t] }' \
        $(seq -f "$logs/$b/%g.log" "$rounds") $(seq -f "$logs/$b/%g.output" "$rounds") | sort
done
while read -r t r why; do
    echo; echo "$t, round $r: $why"
    # The test's last lines, from CTest's full log of that round.
    awk -v t="${t#*/}" '/^[0-9]+\/[0-9]+ Test: / { on = substr($0, index($0, ": ") + 2) == t; out = 0; next }
        on && /^<end of output>$/ { on = 0 } on && out { print "    " $0 } on && /^-+$/ { out = 1 }' \
        "$logs/${t%/*}/$r.output" | tail -n 15
done < "$logs/failed"
echo; echo "per-round logs in $logs"
[ ! -s "$logs/failed" ]
