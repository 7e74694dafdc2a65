#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Cross-builds Velmora for Windows with warnings as errors and runs its tests under Wine.
#   test.sh SDK [REGEX]
#     SDK    the archive velmora-windows-sdk.tar.xz, or a folder with its content
#     REGEX  only the tests whose names match
# The last line counts what passed and what failed; the exit code is 0 only if nothing failed.
set -Eeuo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
if ! [ -e "${1:-}" ]; then
    sed -n 's/^#   //p' packaging/windows/test.sh >&2
    exit 2
fi

# shellcheck source=packaging/linux/dependencies.sh
source packaging/linux/dependencies.sh
# shellcheck source=packaging/testing.sh
source packaging/testing.sh

run_windows_tests "$1" "${2:-.}"
if [ "$failed" -gt 0 ]; then
    exit 1
fi
