#!/bin/bash
# Renders the SVG sources in icons/ to the PNG files that are compiled into the viewer, and to those that
# a desktop shows for the viewer and its files.
# Needs rsvg-convert (Debian: librsvg2-bin). Run it after changing a source, then commit both.
set -euo pipefail
cd "$(dirname "$0")/icons"

render() { # NAME WIDTH
  rsvg-convert --width "$2" --height "$2" "$1.svg" --output "$1.png"
  rsvg-convert --width $((2 * $2)) --height $((2 * $2)) "$1.svg" --output "$1@2x.png"
}

for name in start stop record stop_record refresh; do render "$name" 24; done
for name in layer camera; do render "$name" 16; done
render placeholder 64
render viewer 64

for size in 16 22 24 32 48 64 128 256; do
  for name in viewer updatefile; do
    rsvg-convert --width $size --height $size $name.svg --output ../../../installation/icons/${name}_$size.png
  done
done
