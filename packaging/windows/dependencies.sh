# SPDX-License-Identifier: GPL-3.0-or-later
# shellcheck shell=bash disable=SC2034
# The apt packages that the cross build needs beside those of packaging/linux/dependencies.sh.

cross_packages=(
    dpkg-dev
    g++-mingw-w64-x86-64-posix
    libz-mingw-w64-dev
    nasm
    qttranslations5-l10n
    zip
)

wine_packages=(
    wine64
    xauth
    xvfb
)

installer_packages=(
    nsis
)

# For drop-check.sh.
drop_packages=(
    ffmpeg
    imagemagick
    openbox
    python3-pyqt5
    xdotool
)
