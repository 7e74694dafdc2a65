// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace velmora
{

/// Reads the encoder's progress from its standard error, which holds lines such as
/// "frame=   32 fps=0.0 q=-1.0 size=       0kB time=00:00:01.24 bitrate=   0.3kbits/s". Stateless.
namespace EncoderProgress
{

/// The newest "time=" of @p output in whole seconds; -1 when it has none that parses. Logs
/// "Found timeout from ffmpeg: " with the value, or "Failed to parse time from ffmpeg" where there
/// is a time of another form.
int seconds(const QString &output);

} // namespace EncoderProgress

} // namespace velmora
