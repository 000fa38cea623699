#!/usr/bin/env bash
# Installs what is missing, builds the release program and starts it.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/deps.sh
cmake --preset release >/dev/null
cmake --build --preset release
exec build/release/src/vorkan-mac "$@"
