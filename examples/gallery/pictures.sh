#!/bin/sh
# pictures.sh TOOL FOLDER: pictures of the gallery in every skin, scale and direction.
set -eu
tool=$1
folder=$2
form=$(dirname "$0")/gallery.ui
mkdir -p "$folder"
for scale in 1 1.5 2; do
  for skin in light dark contrast; do
    "$tool" --scale $scale --skin $skin --png "$folder/$skin-$scale.png" "$form"
    "$tool" --scale $scale --skin $skin --rtl --png "$folder/$skin-$scale-rtl.png" "$form"
  done
done
