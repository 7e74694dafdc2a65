#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Drags photos from another program's window onto velmora.exe under Wine, presses CREATE and looks at
# the video. Needs the preset "windows" to be built.
#   drop-check.sh SDK [PICTURE]
#     SDK      the archive velmora-windows-sdk.tar.xz, or a folder with its content
#     PICTURE  where to put a picture of the window with the photos, as PNG
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
bin=$here/../../build/windows/bin
if [ -z "${VELMORA_DROP_FOLDER:-}" ]; then
    # shellcheck source=packaging/linux/dependencies.sh
    source "$here/../linux/dependencies.sh"
    # shellcheck source=packaging/windows/dependencies.sh
    source "$here/dependencies.sh"
    install_packages "${wine_packages[@]}" "${drop_packages[@]}"
    VELMORA_WINDOWS_SDK=$("$here/prepare-sdk.sh" "${1:?name the SDK}")
    VELMORA_DROP_FOLDER=$(mktemp -d)
    trap 'rm -rf "$VELMORA_DROP_FOLDER"' EXIT
    export VELMORA_WINDOWS_SDK VELMORA_DROP_FOLDER
    # Videos go below the home folder.
    HOME=$VELMORA_DROP_FOLDER WINEPREFIX=$VELMORA_DROP_FOLDER/wine LC_ALL=C.UTF-8 \
        "$here/wine-session.sh" "$0" "$@"
    exit
fi

photos="$VELMORA_DROP_FOLDER/мои фото 写真"
mkdir "$photos"
cp "$here/../../examples/photos/Autumn by the lake.jpg" "$photos/Осень у озера.jpg"
cp "$here/../../examples/photos/Sunset at sea.jpg" "$photos/海の夕日.jpg"

# window TITLE: waits for the window whose title begins like this and prints its number.
window() {
    timeout 120 xdotool search --sync --onlyvisible --name "^$1" | tail -n 1
}

openbox 2>/dev/null &
programs=($!)
trap 'kill "${programs[@]}"' EXIT
"$here/wine-run.sh" "$VELMORA_WINDOWS_SDK" "$bin/velmora.exe" &
programs+=($!)
until [ "$(xdotool getwindowgeometry --shell "$(window 'Corvel Velmora')" |
    sed -n 's/^WIDTH=//p')" -gt 800 ]; do
    sleep 1 # Only the splash so far.
done
/usr/bin/python3 "$here/drop_source.py" "$photos"/*.jpg >"$VELMORA_DROP_FOLDER/source.txt" 2>/dev/null &
programs+=($!)
xdotool windowmove --sync "$(window 'Drop source')" 0 0
# A drag begins and goes on with movements, and each must be seen by both programs.
xdotool mousemove 60 60 mousedown 1 sleep 0.5 mousemove 80 70 sleep 0.5
for x in 300 500 600 700 720; do
    xdotool mousemove "$x" 500 sleep 0.5
done
xdotool mouseup 1
target=$(window 'New project')
sleep 5 # Until the thumbnails are there.
[ $# -lt 2 ] || import -window "$target" "$2"
grep -q dropped "$VELMORA_DROP_FOLDER/source.txt"
echo "Dropped"

eval "$(xdotool getwindowgeometry --shell "$target")"
xdotool mousemove $((X + WIDTH - 140)) $((Y + HEIGHT - 52)) click 1
video=
for _ in {1..120}; do
    video=$(find "$VELMORA_DROP_FOLDER" -name 'sshow_*.mp4' | head -n 1)
    [ -z "$video" ] || break
    sleep 2
done
[ -n "$video" ] || {
    import -window root "$VELMORA_DROP_FOLDER/screen.png"
    echo "No video was made." >&2
    exit 1
}
faults=$(ffmpeg -v warning -i "$video" -f null - 2>&1)
[ -z "$faults" ] || {
    echo "$faults" >&2
    exit 1
}
echo "Made $(basename "$video"): $(ffprobe -v error -show_entries format=duration -of csv=p=0 "$video") s"
