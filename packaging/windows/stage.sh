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
# What Qt itself says, in the same languages.
for file in "$folder"/translations/velmora_*.qm; do
    language=$(basename "$file" .qm)
    language=${language#velmora_}
    case $language in
    zh) name=zh_CN ;;
    *) name=$language ;;
    esac
    cp "/usr/share/qt5/translations/qtbase_$name.qm" "$folder/translations/"
done
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

# notice NAME FILE...: the copyright notice of a work, from the first file; the version that is in
# the name of its package differs from system to system.
notice() { cp "$2" "$folder/licences/$1.txt"; }
doc=/usr/share/doc
notice Qt "$doc/libqt5core5a/copyright"
notice Qt-Multimedia "$doc/libqt5multimedia5/copyright"
notice FFmpeg "$doc"/libavcodec[0-9]*/copyright
notice x264 "$doc"/libx264-[0-9]*/copyright
notice LAME "$doc/libmp3lame0/copyright"
notice libvpx "$doc"/libvpx[0-9]*/copyright
notice libjpeg-turbo "$doc"/libturbojpeg*/copyright
notice Exiv2 "$doc"/libexiv2-[0-9]*/copyright
notice zlib "$doc/libz-mingw-w64/copyright"
notice MinGW-w64 "$doc/mingw-w64-common/copyright"
notice GCC "$doc/gcc-mingw-w64-base/copyright"
