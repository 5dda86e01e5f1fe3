#!/usr/bin/env bash
# ./test.sh [CTEST-OPTION...]: builds everything and runs the tests, for example ./test.sh -R layout.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"

scripts/setup.sh
scripts/build.sh debug
ctest --preset debug "$@"
