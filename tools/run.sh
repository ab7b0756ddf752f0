#!/usr/bin/env bash
# Builds the game and starts it.
set -euo pipefail
cd "$(dirname "$0")/.."
bash tools/deps.sh build-essential cmake qt6-base-dev libgtest-dev libgmock-dev libbenchmark-dev
cmake -S . -B build -DCMAKE_BUILD_TYPE=Release
cmake --build build -j"$(nproc)" --target supertirlo
exec ./build/supertirlo
