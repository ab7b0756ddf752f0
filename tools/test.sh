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
set -a
. tools/sanitizers.env
set +a
ctest --test-dir build-asan --output-on-failure -j"$jobs"
