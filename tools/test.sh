#!/usr/bin/env bash
# Builds everything and runs the whole test suite headless.
set -euo pipefail
cd "$(dirname "$0")/.."
bash tools/deps.sh test
cmake -S . -B build -DCMAKE_BUILD_TYPE=Release
cmake --build build -j"$(nproc)"
export QT_QPA_PLATFORM=offscreen
ctest --test-dir build --output-on-failure -j"$(nproc)"
