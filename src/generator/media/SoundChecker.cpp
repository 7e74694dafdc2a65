// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/media/SoundChecker.h"

#include "generator/media/AudioDecoder.h"
#include "generator/media/MediaInput.h"

#include <QCoreApplication>

namespace velmora
{

QString checkSoundFile(const QString &path)
{
    MediaInput input;
    if (!input.open(path))
        return input.errorText();
    AudioDecoder decoder(input);
    if (!decoder.open())
        return decoder.errorText();
    if (decoder.nextFrame() == nullptr)
        return QCoreApplication::translate("velmora::SoundChecker", "Nothing in it can be played.");
    return {};
}

} // namespace velmora
