// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace velmora
{

/// Finds the FFmpeg program: application directory, then VELMORA_FFMPEG, then the PATH.
struct EncoderLocation {
    QString program; ///< Absolute path; empty when none is usable.
    QString error;   ///< One message naming what to install.
};

/// Runs "-version" once per process and program; needs release 4.4 or newer. Any thread.
EncoderLocation locateEncoder();

} // namespace velmora
