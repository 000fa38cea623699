#!/usr/bin/env bash
# Builds the release program and prints every benchmark figure.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/deps.sh test
cmake --preset release >/dev/null
cmake --build --preset release
build=build/release
/usr/bin/python3 bench/startup.py "$build/src/vorkan-mac" "$build/bench/bench-minimal-qt" "${RUNS:-10}"
QT_QPA_PLATFORM=offscreen QT_LOGGING_RULES='qt.qpa.*=false' "$build/bench/bench-calc" \
    | grep -E 'RESULT|per iteration|open:|Pow:'
