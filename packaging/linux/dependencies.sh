# SPDX-License-Identifier: GPL-3.0-or-later
# shellcheck shell=bash disable=SC2034
# The apt packages that building, running and testing need, under names that Debian 12 and Ubuntu
# 22.04 and later share. Sourced by run.sh and test.sh; one package a line, sorted.

build_packages=(
    ccache
    cmake
    g++
    libavcodec-dev
    libavformat-dev
    libavutil-dev
    libboost-dev
    libburn-dev
    libexiv2-dev
    libisofs-dev
    libjpeg-dev
    libqt5networkauth5-dev
    libqt5svg5-dev
    libqt5x11extras5-dev
    libsodium-dev
    libswresample-dev
    libturbojpeg0-dev
    libxcb1-dev
    ninja-build
    pkg-config
    qtbase5-dev
    qtkeychain-qt5-dev
    qtmultimedia5-dev
    qttools5-dev
    qttools5-dev-tools
)

run_packages=(
    ffmpeg
    fonts-droid-fallback
    fonts-noto-core
    fonts-open-sans
    gstreamer1.0-alsa
    gstreamer1.0-libav
    gstreamer1.0-plugins-base
    gstreamer1.0-plugins-good
    libqt5multimedia5-plugins
    libqt5svg5
    qt5-image-formats-plugins
    qttranslations5-l10n
)

test_packages=(
    dbus
    groff-base
    openbox
    openssl
    python3
    xdotool
    xorriso
    xvfb
)

fake_services_packages=(
    openssl
    python3
)

format_packages=(
    clang-format-14
)

fuzz_packages=(
    clang
)

# For the option VELMORA_WITH_WEBENGINE alone.
webengine_packages=(
    qtwebengine5-dev
)

benchmark_packages=(
    libbenchmark-dev
    melt
)

# missing_packages PACKAGE...: prints those that are not installed.
missing_packages() {
    local installed
    installed=$(dpkg-query -W -f '${binary:Package} ${db:Status-Status}\n' "$@" 2>/dev/null |
        sed -n 's/^\([^: ]*\)[^ ]* installed$/\1/p') || true
    printf '%s\n' "$@" | grep -vxF -f <(printf '%s\n' "$installed") || true
}

# install_packages PACKAGE...: installs what is missing, as root or with sudo.
install_packages() {
    local missing=() as_root=()
    if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
        echo "apt is not available here; make sure that the equivalents of these are installed:" "$@" >&2
        return 0
    fi
    mapfile -t missing < <(missing_packages "$@")
    [ "${#missing[@]}" -gt 0 ] || return 0

    if [ "$(id -u)" -ne 0 ]; then
        if ! command -v sudo >/dev/null; then
            echo "Some packages are missing. As root, run: apt-get install ${missing[*]}" >&2
            return 1
        fi
        as_root=(sudo)
    fi
    echo "Installing ${missing[*]}"
    # Another program may be installing at this moment.
    as_root+=(env DEBIAN_FRONTEND=noninteractive apt-get -qq -o DPkg::Lock::Timeout=600)
    # The package lists may be absent (fresh containers) or too old to install from.
    if ! apt-cache show "${missing[@]}" >/dev/null 2>&1 ||
        ! "${as_root[@]}" install -y --no-install-recommends "${missing[@]}" >/dev/null; then
        "${as_root[@]}" update
        "${as_root[@]}" install -y --no-install-recommends "${missing[@]}" >/dev/null
    fi
}
