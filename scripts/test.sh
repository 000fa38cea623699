#!/usr/bin/env bash
# Installs what is missing, then builds and runs every test twice: in the normal
# build and under AddressSanitizer, UndefinedBehaviorSanitizer and LeakSanitizer.
# Needs no display. Then builds the Debian package and checks it, and builds for Windows
# and tests that under Wine (scripts/windows.sh); VORKAN_WINDOWS=0 leaves Windows out,
# for a quick local run.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/deps.sh test
for preset in dev asan; do
    cmake --preset "$preset" >/dev/null
    cmake --build --preset "$preset"
    ctest --preset "$preset"
done
# The Debian package as the README builds it, under a umask that would show any mode left
# to chance, and checked as a distribution would (tests/e2e/e2e_package.py).
(umask 077 && scripts/package.sh)
/usr/bin/python3 tests/e2e/e2e_package.py build/package
if [[ ${VORKAN_WINDOWS:-1} != 0 ]]; then
    scripts/windows.sh
fi
