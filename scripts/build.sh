#!/usr/bin/env bash
# scripts/build.sh PRESET [TARGET...]: configures build/PRESET where that is due, and builds.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

preset=$1
shift
made=build/$preset/build.ninja
if [[ ! -e $made || CMakePresets.json -nt $made ]]; then
  cmake --preset "$preset"
fi
cmake --build --preset "$preset" ${*:+--target "$@"}
