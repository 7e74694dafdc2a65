#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Makes the pictures in docs/screenshots anew, from the bundled photos: run it after a change that
# can be seen, and look at what it made. Needs the preset "dev" to be built, xvfb-run and, for the
# pages that a browser shows after a sign-in, chromium; pngquant makes the files small.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
bin=build/${1:-dev}/bin
folder=docs/screenshots
mkdir -p "$folder"
export QT_QPA_PLATFORM=xcb LC_ALL=C.UTF-8
screen=(xvfb-run -a -s "-screen 0 1600x1000x24")
"${screen[@]}" "$bin/editorgallery" "$folder" en 1280x800 examples/photos/*.jpg
work=$(mktemp -d)
trap 'rm -r "$work"' EXIT
video="$work/Summer at the lake.mp4"
"$bin/velmoratool" make --photos examples/photos --output "$video" \
    --size 1280x720 --time 3 >/dev/null
"${screen[@]}" "$bin/sharinggallery" "$folder" en "$video" examples/photos/*.jpg
# One page as a sharp screen shows it, and two in a large window.
large=(xvfb-run -a -s "-screen 0 2720x1700x24")
QT_SCALE_FACTOR=2 "${large[@]}" "$bin/editorgallery" "$work" en 1280x800 examples/photos/*.jpg
cp "$work/editor-preview.png" "$folder/editor-2x.png"
"${large[@]}" "$bin/editorgallery" "$work" en 2560x1440 examples/photos/*.jpg
cp "$work/start.png" "$folder/start-2560.png"
cp "$work/editor.png" "$folder/editor-2560.png"
if [ -x "$bin/EmbeddedSignInTest" ]; then # Built with VELMORA_WITH_WEBENGINE.
    VELMORA_SCREENSHOTS=$folder "${screen[@]}" "$bin/EmbeddedSignInTest" >/dev/null 2>&1
fi
browser=(chromium --headless "--window-size=640,400")
[ "$(id -u)" -ne 0 ] || browser+=(--no-sandbox)
for page in "$folder"/answer-*.html; do
    ! command -v chromium >/dev/null ||
        "${browser[@]}" --screenshot="${page%.html}.png" "file://$PWD/$page" 2>/dev/null
    rm -f "$page"
done
if command -v pngquant >/dev/null; then
    pngquant --force --skip-if-larger --ext .png "$folder"/*.png || true
fi
