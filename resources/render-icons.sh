#!/bin/bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Renders the icons: every icons/svg/NAME.svg becomes images/NAME.png at its own size and
# images/NAME@2x.png at twice that, and images.qrc lists them all; the program's icon also becomes
# velmora.ico. Needs rsvg-convert (librsvg2-bin) and convert (imagemagick). Some icons exist in
# further colours, made from the same drawing.
set -euo pipefail
cd "$(dirname "$0")"

base_colour='#3d4a54'
# NAME-selected: on a row in the accent colour. NAME-white: on a filled button.
# NAME-accent: switched on.
selected=(audio-play audio-st audio-del audio-toogle delete folder-open preview disc pause play edit grip)
white=(play pause stop preview check upload disc folder-open add-photo add-folder add-audio save
    volume mute repeat fullscreen fullscreen-exit service-video service-drive service-box film)
accent=(repeat shuffle rotate mute volume check text audio-toogle AB-down AB-up preview add-photo
    add-folder add-audio link-out)
application_sizes=(16 24 32 48 64 128 256)

# render SVG NAME: both scales of one picture.
render() {
    rsvg-convert --zoom 1 --output "images/$2.png" "$1"
    rsvg-convert --zoom 2 --output "images/$2@2x.png" "$1"
}

# recolour NAME SUFFIX COLOUR: the same drawing in another colour.
recolour() {
    local svg="$work/$1-$2.svg"
    sed "s/$base_colour/$3/g" "icons/svg/$1.svg" >"$svg"
    render "$svg" "$1-$2"
}

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

for svg in icons/svg/*.svg; do
    render "$svg" "$(basename "$svg" .svg)"
done
for name in "${selected[@]}"; do recolour "$name" selected '#06202f'; done
for name in "${white[@]}"; do recolour "$name" white '#ffffff'; done
for name in "${accent[@]}"; do recolour "$name" accent '#0873a8'; done
rsvg-convert --zoom 2 --output images/photos-large.png icons/svg/photos.svg
rsvg-convert --zoom 4 --output images/photos-large@2x.png icons/svg/photos.svg
recolour window-close white '#ffffff'
recolour arrow-down disabled '#8a97a1'
for size in "${application_sizes[@]}"; do
    rsvg-convert --width "$size" --height "$size" --output "images/velmora-$size.png" icons/svg/velmora.svg
done

icons=("${application_sizes[@]/#/images/velmora-}")
convert "${icons[@]/%/.png}" velmora.ico

{
    echo '<!DOCTYPE RCC>'
    echo '<!-- SPDX-License-Identifier: GPL-3.0-or-later -->'
    echo '<RCC version="1.0">'
    echo '  <qresource prefix="/">'
    echo '    <file>style.css</file>'
    echo '  </qresource>'
    echo '  <qresource prefix="/images">'
    for png in images/*.png; do
        [ "$png" = images/lloading2.png ] || echo "    <file>$png</file>"
    done
    echo '  </qresource>'
    echo '</RCC>'
} >images.qrc
