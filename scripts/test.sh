#!/usr/bin/env bash
# Installs what is missing, then builds and runs every test twice: in the normal
# build and under AddressSanitizer, UndefinedBehaviorSanitizer and LeakSanitizer.
# Needs no display. Then builds for Windows and tests that under Wine
# (scripts/windows.sh); VORKAN_WINDOWS=0 leaves Windows out, for a quick local run.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/deps.sh test
for preset in dev asan; do
    cmake --preset "$preset" >/dev/null
    cmake --build --preset "$preset"
    ctest --preset "$preset"
done
if [[ ${VORKAN_WINDOWS:-1} != 0 ]]; then
    scripts/windows.sh
fi
