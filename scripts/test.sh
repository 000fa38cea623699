#!/usr/bin/env bash
# Installs what is missing, then builds and runs every test twice: in the normal
# build and under AddressSanitizer, UndefinedBehaviorSanitizer and LeakSanitizer.
# Needs no display.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/deps.sh test
for preset in dev asan; do
    cmake --preset "$preset" >/dev/null
    cmake --build --preset "$preset"
    ctest --preset "$preset"
done
