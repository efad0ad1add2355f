#!/usr/bin/env bash
# Installs what is missing, builds and runs every test. The preset is debug
# unless one is named (asan runs the suite under address and UB sanitizers).
set -euo pipefail
cd "$(dirname "$0")/.."

preset="${1:-debug}"
scripts/setup.sh
cmake --preset "$preset" >/dev/null
cmake --build --preset "$preset" -j 2
ctest --preset "$preset" -j 2
