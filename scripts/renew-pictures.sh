#!/bin/bash
# Renews the pictures of the README in docs/images: the viewer and the five steps in English, and
# Step 1 in the other languages. The viewer's own demonstration makes them, with fresh cameras and
# nothing remembered from earlier runs.
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")/.."
scripts/install-dependencies.sh pictures

pictures=docs/images
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# Without a desktop around it the viewer looks the same on every machine.
unset DISPLAY WAYLAND_DISPLAY QT_QPA_PLATFORM QT_SCALE_FACTOR
mkdir "$work/home"
languages=$(basename --suffix .ts --multiple viewer/translations/viewer_*.ts | sed s/viewer_//)
for language in $languages; do
  HOME=$work/home ./run --demo "$work/$language" --language $language --reset-cameras
done

mkdir -p $pictures
# That of four cameras is taken by hand: the demonstration starts only one.
find $pictures -name '*.png' ! -name cameras.png -delete
# A palette is enough for windows, and makes the files a third as large.
shrink() {
  convert "$1" -strip +dither -colors "$3" "PNG8:$pictures/$2"
}
shrink "$work/en/viewer.png" viewer.png 128
for step in 1 2 3 4 5; do
  shrink "$work/en/step$step.png" step$step.png 64
done
for language in ${languages/en/}; do
  shrink "$work/$language/step1.png" step1_$language.png 64
done
du --bytes --total $pictures/*.png | tail -1
