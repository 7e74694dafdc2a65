#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Runs a command with Wine ready on a display of its own, and ends all of Wine afterwards.
#   wine-session.sh COMMAND ARGUMENTS...
# WINEPREFIX is the scratch folder for Wine's files, VELMORA_WINDOWS_SDK what prepare-sdk.sh prints.
set -euo pipefail
if [ -z "${VELMORA_WINE_SESSION:-}" ]; then
    export VELMORA_WINE_SESSION=1
    exec xvfb-run -a -s '-screen 0 1600x1000x24' "$0" "$@"
fi
wineserver=/usr/lib/wine/wineserver64
mkdir -p "$WINEPREFIX"
"$wineserver" -p
trap 'timeout -k 5 60 "$wineserver" -k' EXIT
timeout -k 5 300 "$(dirname "${BASH_SOURCE[0]}")/wine-run.sh" "$VELMORA_WINDOWS_SDK" wineboot -u
"$@"
