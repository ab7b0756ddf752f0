#!/usr/bin/env bash
# Builds everything and runs the whole test suite headless, twice: in the
# release build, and in a build with AddressSanitizer, UndefinedBehaviorSanitizer
# and leak detection, where any report fails the run.
set -euo pipefail
cd "$(dirname "$0")/.."
bash tools/deps.sh test
export QT_QPA_PLATFORM=offscreen
jobs=$(nproc)

cmake -S . -B build -DCMAKE_BUILD_TYPE=Release
cmake --build build -j"$jobs"
ctest --test-dir build --output-on-failure -j"$jobs"

cmake -S . -B build-asan -DCMAKE_BUILD_TYPE=RelWithDebInfo -DTIRLO_SANITIZE=ON -DTIRLO_BENCH=OFF
cmake --build build-asan -j"$jobs"
ASAN_OPTIONS=detect_leaks=1:abort_on_error=1:strict_string_checks=1 \
    UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1 \
    ctest --test-dir build-asan --output-on-failure -j"$jobs"
