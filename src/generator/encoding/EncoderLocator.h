// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

namespace velmora
{

/// Finds the FFmpeg program: application directory, then VELMORA_FFMPEG, then the PATH.
struct EncoderLocation {
    QString program; ///< Absolute path; empty when none is usable.
    QString error;   ///< One message naming what to install.
};

/// The version of an FFmpeg program.
struct EncoderVersion {
    QString text;        ///< As the program names it; empty when it is not FFmpeg.
    bool usable = false; ///< Release 4.4 or newer.

    /// Reads what "-version" prints.
    static EncoderVersion fromOutput(const QByteArray &output);
};

/// Runs "-version" once per process and program; needs release 4.4 or newer. Any thread.
EncoderLocation locateEncoder();

} // namespace velmora
