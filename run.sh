#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Builds Velmora and shows it at work.
#   ./run.sh                 makes a video of the bundled photos and music, then opens the editor
#                            where there is a display
#   ./run.sh make ARGS...    hands the arguments to velmoratool ("./run.sh --help" lists them)
#   ./run.sh --fake-services opens the editor with fake upload services; see docs/fake-services.md
set -euo pipefail
start_folder=$PWD
top=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
cd "$top"

# shellcheck source=packaging/linux/dependencies.sh
source packaging/linux/dependencies.sh
install_packages "${build_packages[@]}" "${run_packages[@]}" >&2

build=$top/build/release
{
    [ -f "$build/build.ninja" ] || cmake --preset release
    cmake --build --preset release --target velmora velmoratool transcoder
} >&2

if [ "${1:-}" = --fake-services ]; then
    install_packages "${fake_services_packages[@]}" >&2
    if [ -n "${DISPLAY:-}" ] || [ -n "${WAYLAND_DISPLAY:-}" ]; then
        exec python3 "$top/tests/fakes/services" --tls "$build/bin/velmora"
    fi
    echo "There is no display here, so only the services run, until Ctrl+D." >&2
    exec python3 "$top/tests/fakes/services" --tls
fi

if [ $# -gt 0 ]; then
    # Relative names are those of the folder from which the script was called.
    cd "$start_folder"
    exec "$build/bin/velmoratool" "$@"
fi

# The user's video folder if there is one; xdg-user-dir answers with the home folder otherwise.
folder=$(xdg-user-dir VIDEOS 2>/dev/null || true)
if [ -z "$folder" ] || [ "$folder" = "${HOME:-}" ] || [ "$folder" = "${HOME:-}/" ] ||
    ! [ -d "$folder" ] || ! [ -w "$folder" ]; then
    folder=$top/build/sample
    mkdir -p "$folder"
fi
video="$folder/Velmora sample.mp4"

slideshow=(
    --photos "$top/examples/photos"
    --music "$top/examples/music"
    --output "$video"
    --title "A day outdoors"
    --captions-from-names --sort date
    --time 2 --transition-length 1
    --fade 2
    --parallel
    --profile everywhere
)
"$build/bin/velmoratool" make "${slideshow[@]}"

if [ -n "${DISPLAY:-}" ] || [ -n "${WAYLAND_DISPLAY:-}" ]; then
    # The same slideshow as a document, so that it can be changed and made again.
    document="$top/build/A day outdoors.json"
    "$build/bin/velmoratool" make "${slideshow[@]}" --dump-project "$document"
    exec "$build/bin/velmora" "$document"
fi
echo "There is no display here, so the editor is not opened."
