#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Makes a Windows SDK folder ready for the cross build and prints its path.
#   prepare-sdk.sh SDK    SDK: the archive velmora-windows-sdk.tar.xz, or a folder with its content
#                         (Qt 5.15 and FFmpeg for MinGW-w64)
# An archive is unpacked once into the user's cache folder. libjpeg-turbo and Exiv2, which it lacks,
# are built from Debian's source packages.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
# shellcheck source=packaging/linux/dependencies.sh
source "$here/../linux/dependencies.sh"
# shellcheck source=packaging/windows/dependencies.sh
source "$here/dependencies.sh"
given=$(realpath "${1:?name the SDK}")
exec 3>&1 1>&2
install_packages "${build_packages[@]}" "${cross_packages[@]}"

cache=${XDG_CACHE_HOME:-$HOME/.cache}/velmora
mkdir -p "$cache"
# Two builds at once must not unpack into the same folder.
exec 9>"$cache/windows-sdk.lock"
flock 9

if [ -d "$given" ]; then
    sdk=$given
else
    sdk=$cache/windows-sdk-$(stat -c '%s-%Y' "$given")
    if ! [ -d "$sdk" ]; then
        rm -rf "$sdk.new"
        mkdir "$sdk.new"
        tar xf "$given" -C "$sdk.new" --strip-components 1
        mv "$sdk.new" "$sdk"
    fi
fi

# The .pc files name the folder in which the libraries were built, not where they lie now.
for file in "$sdk"/lib/pkgconfig/*.pc; do
    built=$(sed -n 's/^prefix=//p' "$file" | head -n 1)
    [ "$built" = "$sdk" ] || sed -i "s|$built|$sdk|g" "$file"
done

as_root() {
    if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo "$@"; fi
}

# fetch PACKAGE FOLDER: unpacks the upstream source of a Debian package.
fetch() {
    if ! apt-cache showsrc "$1" >/dev/null 2>&1; then
        local list=/etc/apt/sources.list.d/debian.sources
        if [ -f "$list" ]; then
            sed 's/^Types: deb$/Types: deb-src/' "$list" |
                as_root tee /etc/apt/sources.list.d/velmora-src.sources >/dev/null
        else
            sed -n 's/^deb /deb-src /p' /etc/apt/sources.list |
                as_root tee /etc/apt/sources.list.d/velmora-src.list >/dev/null
        fi
        as_root apt-get -qq update
    fi
    (cd "$work" && apt-get -qq source --download-only "$1")
    mkdir "$work/$2"
    tar xf "$(find "$work" -maxdepth 1 -name "$1_*.orig.tar.*" ! -name '*.asc' | head -n 1)" \
        -C "$work/$2" --strip-components 1
}

# build FOLDER OPTIONS...: configures, builds and installs a library into the SDK.
build() {
    local folder=$work/$1
    shift
    VELMORA_WINDOWS_SDK=$sdk cmake -G Ninja -S "$folder" -B "$folder-build" \
        -DCMAKE_TOOLCHAIN_FILE="$here/toolchain-mingw.cmake" -DCMAKE_INSTALL_PREFIX="$sdk" \
        -DCMAKE_BUILD_TYPE=Release -DCMAKE_C_COMPILER_LAUNCHER=ccache \
        -DCMAKE_CXX_COMPILER_LAUNCHER=ccache -DBUILD_SHARED_LIBS=OFF "$@" >"$folder.log" &&
        cmake --build "$folder-build" --target install >>"$folder.log" || {
        tail -n 30 "$folder.log"
        return 1
    }
}

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
if ! [ -f "$sdk/lib/libturbojpeg.a" ]; then
    fetch libjpeg-turbo jpeg
    build jpeg -DENABLE_SHARED=OFF
fi
if ! [ -f "$sdk/lib/libexiv2.a" ]; then
    fetch exiv2 exiv2
    build exiv2 -DEXIV2_ENABLE_XMP=OFF -DEXIV2_ENABLE_NLS=OFF -DEXIV2_ENABLE_WIN_UNICODE=ON \
        -DEXIV2_BUILD_EXIV2_COMMAND=OFF -DEXIV2_BUILD_SAMPLES=OFF
fi
echo "$sdk" >&3
