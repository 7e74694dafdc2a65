#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Cross-builds Velmora for 64-bit Windows.
#   build.sh SDK [--installer]
#     SDK          the archive velmora-windows-sdk.tar.xz, or a folder with its content
#     --installer  also make an installer (NSIS)
# Makes build/windows/velmora-VERSION-windows.zip and the same as a folder; what lies in it runs
# without installation.
set -euo pipefail
top=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
cd "$top"
# shellcheck source=packaging/linux/dependencies.sh
source packaging/linux/dependencies.sh
# shellcheck source=packaging/windows/dependencies.sh
source packaging/windows/dependencies.sh

usage() { sed -n 's/^#   //p' "$0"; }
given= installer=no
for argument in "$@"; do
    case $argument in
    --installer) installer=yes ;;
    -h | --help)
        usage
        exit 0
        ;;
    *) given=$argument ;;
    esac
done
if ! [ -e "$given" ]; then
    usage >&2
    exit 2
fi

VELMORA_WINDOWS_SDK=$(packaging/windows/prepare-sdk.sh "$given")
export VELMORA_WINDOWS_SDK
build=$top/build/windows
mkdir -p "$build"
cmake --preset windows -DVELMORA_BUILD_TESTS=OFF >"$build/configure.log" || {
    cat "$build/configure.log"
    exit 1
}
cmake --build --preset windows

version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$build/CMakeCache.txt")
name=velmora-$version-windows
packaging/windows/stage.sh "$VELMORA_WINDOWS_SDK" "$build/bin" "$build/$name"
(cd "$build" && rm -f "$name.zip" && zip -qr "$name.zip" "$name")
echo "Made build/windows/$name.zip"

if [ "$installer" = yes ]; then
    install_packages "${installer_packages[@]}"
    (
        cd "$build/$name"
        find . -type f -printf 'Delete "$INSTDIR\\%P"\n' | tr / '\\'
        find . -mindepth 1 -depth -type d -printf 'RMDir "$INSTDIR\\%P"\n' | tr / '\\'
    ) >"$build/installed-files.nsh"
    makensis -V2 -INPUTCHARSET UTF8 -DVERSION="$version" -DSOURCE="$build/$name" \
        -DFILELIST="$build/installed-files.nsh" \
        -DOUTPUT="$build/velmora-$version-setup.exe" "$top/packaging/windows/installer.nsi"
    echo "Made build/windows/velmora-$version-setup.exe"
fi
