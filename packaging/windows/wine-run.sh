#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Runs a Windows program of the build under Wine.
#   wine-run.sh SDK PROGRAM ARGUMENTS...    SDK: the folder that prepare-sdk.sh prints
# Qt, FFmpeg and what else the program loads come from the SDK. Wine's own files lie in WINEPREFIX,
# which should be a scratch folder; the settings of the user's Wine are left alone.
set -euo pipefail
sdk=$1
shift
export WINEPREFIX=${WINEPREFIX:?name a scratch folder}
export WINEDEBUG=${WINEDEBUG:--all}
# Wine would ask whether to download its .NET and its browser, examine crashes in a window, and put
# entries into the menu of the desktop.
export WINEDLLOVERRIDES='mscoree=;mshtml=;winedbg.exe=;winemenubuilder.exe='
export WINEPATH="Z:$sdk/bin" QT_PLUGIN_PATH="Z:$sdk/plugins"
exec /usr/lib/wine/wine64 "$@"
