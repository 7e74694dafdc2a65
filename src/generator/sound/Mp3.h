// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace velmora
{

/// MP3 files for those who can only play WAV.
class Mp3
{
public:
    /// Converts a file to WAV in the folder "/WavTempDir/" of the temporary location, in this
    /// process, and returns the new path; empty with a log line on failure. The caller removes the
    /// file. Any thread; blocks while it decodes.
    static QString convertAudio(const QString &path);
};

} // namespace velmora
