#!/usr/bin/env bash
# Installs what is missing, builds the release preset and plays one of the
# scripts of samples/scripts on the sample session:
#   scripts/play-sample.sh bom-levels
# Each play gets a fresh working directory, ./bom-work/play/NAME, and its own
# copies there of the plug-in's files (app/) and of the sample session
# (session/), so that what a script changes in the settings or saves of the
# models stays with that play.
set -euo pipefail
cd "$(dirname "$0")/.."

name="${1:?usage: scripts/play-sample.sh NAME (one of: $(cd samples/scripts && ls *.play | sed 's/\.play$//' | tr '\n' ' '))}"
script="samples/scripts/${name%.play}.play"
[ -f "$script" ] || { echo "no script $script" >&2; exit 2; }

scripts/setup.sh
cmake --preset release >/dev/null
cmake --build --preset release -j 2
work="bom-work/play/${name%.play}"
rm -rf "$work"
# backup/ is there for a script's backups to be chosen as a directory.
mkdir -p "$work/backup"
cp -r build/release/stage "$work/app"
cp -r build/release/samples/reducer "$work/session"
exec build/release/workbench/bom-workbench play "$script" --workdir "$work" --plugin-root "$work/app" \
  --session "$work/session" "${@:2}"
