#!/usr/bin/env bash
# Installs what is missing, builds and runs every test; needs no display.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/deps.sh test
cmake --preset dev >/dev/null
cmake --build --preset dev
ctest --preset dev
