#!/usr/bin/env bash
# Makes the pictures of the docs with the preview tool: one form at 100 % and 150 %, light and dark,
# left-to-right and right-to-left.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/build.sh release wexa-preview >&2
preview=build/release/bin/wexa-preview
form=examples/settings/settings.ui
mkdir -p docs/pictures
export FONTCONFIG_FILE=$PWD/tests/support/fonts.conf

picture() {
  "$preview" --display offscreen --png "docs/pictures/$1.png" "${@:2}" "$form"
}

picture settings
picture settings-150 --scale 1.5
picture settings-dark --skin dark
picture settings-rtl --rtl
picture settings-contrast --skin contrast
