#!/usr/bin/env bash
# Builds the release program and prints every benchmark figure.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/deps.sh test
scripts/deps.sh bench
cmake --preset release >/dev/null
cmake --build --preset release
build=build/release
programs=("$build/src/vorkan-mac" "$build/bench/bench-minimal-qt" "$build/bench/bench-plain-main")
/usr/bin/python3 bench/instructions.py "${programs[@]}"
/usr/bin/python3 bench/startup.py "${programs[@]}" "${RUNS:-10}"
QT_QPA_PLATFORM=offscreen QT_LOGGING_RULES='qt.qpa.*=false' "$build/bench/bench-calc" \
    | grep -E 'RESULT|per iteration|open:|Pow:'
