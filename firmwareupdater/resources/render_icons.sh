#!/bin/sh
# Renders every icon in icons/ from its SVG source: once in the size that its file name ends with,
# once in twice that size for displays with a device pixel ratio of 2. Run it after changing a
# source and commit the pictures with it; the build only packs them.
set -eu
cd "$(dirname "$0")/icons"
for source in *.svg; do
    name=${source%.svg}
    size=${name%_en}
    size=${size##*_}
    width=${size%x*}
    height=${size#*x}
    rsvg-convert -w "$width" -h "$height" -o "$name.png" "$source"
    rsvg-convert -w "$((2 * width))" -h "$((2 * height))" -o "$name@2x.png" "$source"
done
