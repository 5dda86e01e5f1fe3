#!/usr/bin/env bash
# Makes the pictures of the docs: the settings example with the preview tool, every page of the gallery
# with the gallery itself; each in several looks.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/build.sh release wexa-preview gallery >&2
programs=$PWD/build/release/bin
pictures=$PWD/docs/pictures
mkdir -p "$pictures"
export FONTCONFIG_FILE=$PWD/tests/support/fonts.conf WEXA_DISPLAY=offscreen

settings() {
  "$programs/wexa-preview" --png "$pictures/settings$1.png" "${@:2}" examples/settings/settings.ui
}

settings ""
settings -150 --scale 1.5
settings -dark --skin dark
settings -rtl --rtl
settings -contrast --skin contrast

# gallery NAME DPI CONTRAST [dark] [rtl]
gallery() {
  (cd examples/gallery &&
    WEXA_DPI=$2 WEXA_HIGH_CONTRAST=$3 "$programs/gallery" --pictures "$pictures/gallery$1" "${@:4}")
}

gallery "" 96 0
gallery -150 144 0
gallery -200 192 0
gallery -dark 96 0 dark
gallery -contrast 96 1
gallery -rtl 96 0 rtl
