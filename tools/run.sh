#!/usr/bin/env bash
# Builds the game and starts it.
set -euo pipefail
cd "$(dirname "$0")/.."
bash tools/deps.sh build
cmake -S . -B build -DCMAKE_BUILD_TYPE=Release
cmake --build build -j"$(nproc)" --target supertirlo
exec ./build/supertirlo
