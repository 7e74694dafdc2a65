// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/EncoderAdvice.h"

#include <QCoreApplication>

namespace velmora
{

QString EncoderAdvice::missing()
{
    return QCoreApplication::translate("velmora::EncoderAdvice",
                                       "FFmpeg was not found. Please install it (on Debian and "
                                       "Ubuntu: sudo apt install ffmpeg).");
}

QString EncoderAdvice::tooOld(const QString &version, const QString &program)
{
    return QCoreApplication::translate(
               "velmora::EncoderAdvice",
               "FFmpeg %1 (%2) is too old. Please install version 4.4 or newer (on Debian "
               "and Ubuntu: sudo apt install ffmpeg).")
        .arg(version, program);
}

} // namespace velmora
