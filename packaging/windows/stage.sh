#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Puts everything that the programs need on Windows into one folder.
#   stage.sh SDK BIN FOLDER    BIN: where the build put the programs; FOLDER is made anew
set -euo pipefail
sdk=$1 bin=$2 folder=$3
top=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)

rm -rf "$folder"
mkdir -p "$folder/licences"
for program in velmora velmoratool transcoder; do
    cp "$bin/$program.exe" "$folder/"
    x86_64-w64-mingw32-strip "$folder/$program.exe"
done
cp "$sdk/bin/ffmpeg.exe" "$folder/"
cp -r "$bin/translations" "$folder/"
cp -r "$top/examples" "$folder/"
for plugin in platforms/qwindows imageformats/qjpeg imageformats/qgif imageformats/qico \
    styles/qwindowsvistastyle audio/qtaudio_windows mediaservice/dsengine \
    mediaservice/qtmedia_audioengine playlistformats/qtmultimedia_m3u; do
    mkdir -p "$folder/$(dirname "$plugin")"
    cp "$sdk/plugins/$plugin.dll" "$folder/$plugin.dll"
done

# needs FILE: the libraries that a program or library loads.
needs() { x86_64-w64-mingw32-objdump -p "$1" | sed -n 's/^\tDLL Name: //p'; }

# Libraries bring further ones, so look until nothing new comes.
mapfile -t queue < <(find "$folder" -name '*.exe' -o -name '*.dll')
while [ "${#queue[@]}" -gt 0 ]; do
    file=${queue[0]}
    queue=("${queue[@]:1}")
    while read -r library; do
        if [ -f "$sdk/bin/$library" ] && ! [ -f "$folder/$library" ]; then
            cp "$sdk/bin/$library" "$folder/"
            queue+=("$folder/$library")
        fi
    done < <(needs "$file")
done

cp "$top/LICENSE" "$folder/licences/Velmora.txt"
cp "$top/packaging/windows/third-party.txt" "$folder/licences/"
cp /usr/share/common-licenses/{GPL-2,GPL-3,LGPL-2.1,LGPL-3} "$folder/licences/"
