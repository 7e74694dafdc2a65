// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace velmora
{

/// What to tell the user when there is no usable FFmpeg: one sentence for the fault and one that
/// says how the program is installed on this system. Translated. Any thread.
namespace EncoderAdvice
{

QString missing();
/// @p version as FFmpeg names it, @p program its path.
QString tooOld(const QString &version, const QString &program);

} // namespace EncoderAdvice

} // namespace velmora
