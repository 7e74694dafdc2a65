// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/EncoderAdvice.h"

#include <QCoreApplication>

namespace velmora
{

QString EncoderAdvice::missing()
{
    return QCoreApplication::translate(
        "velmora::EncoderAdvice", "FFmpeg was not found. It comes with Velmora: please install "
                                  "Velmora again, or put ffmpeg.exe into its folder.");
}

QString EncoderAdvice::tooOld(const QString &version, const QString &program)
{
    return QCoreApplication::translate(
               "velmora::EncoderAdvice",
               "FFmpeg %1 (%2) is too old. Please install Velmora again, or put ffmpeg.exe of "
               "version 4.4 or newer into its folder.")
        .arg(version, program);
}

} // namespace velmora
