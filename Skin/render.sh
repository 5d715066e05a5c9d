#!/bin/sh
# Draws every PNG of the skin from the SVG beside it: once in the size that the SVG states and once in twice
# that size as "<name>@2x.png", which Qt takes on dense screens. Needs rsvg-convert. Run it after changing an
# SVG and commit both.
#
# The two cursors of the day bar have one size only: their users cut 18 x 18 pixels out of the image, and a
# denser one would lose its lower left corner, where the tip is.
set -eu
cd "$(dirname "$0")/theme1"
find . -name '*.svg' | sort | while read -r svg; do
    png="${svg%.svg}.png"
    rsvg-convert "$svg" -o "$png"
    case "$svg" in
    */DrawTime.svg | */CleanTime.svg | ./app.svg) ;;
    *) rsvg-convert --zoom 2 "$svg" -o "${svg%.svg}@2x.png" ;;
    esac
done
