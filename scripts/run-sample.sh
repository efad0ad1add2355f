#!/usr/bin/env bash
# Installs what is missing, builds the release preset and runs the workbench's
# main job on the bundled sample session. Extra arguments go to the job.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/setup.sh
cmake --preset release >/dev/null
cmake --build --preset release -j 2
exec build/release/workbench/bom-workbench bom "$@"
