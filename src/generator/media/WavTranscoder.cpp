// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/media/WavTranscoder.h"

#include "generator/media/AudioDecoder.h"
#include "generator/media/MediaInput.h"
#include "generator/media/PcmConverter.h"
#include "generator/media/WavWriter.h"

#include <QDir>

namespace velmora
{

bool WavTranscoder::transcode(const QString &from, const QString &to)
{
    const QString cannotRead = tr("The music file '%1' cannot be read: %2");
    const QString source = QDir::toNativeSeparators(from);
    m_errorText.clear();
    m_diskFull = false;
    m_damagedCount = 0;

    MediaInput input;
    if (!input.open(from))
        return fail(cannotRead.arg(source, input.errorText()));
    AudioDecoder decoder(input);
    if (!decoder.open())
        return fail(cannotRead.arg(source, decoder.errorText()));
    WavWriter writer(to);
    if (!writer.open())
        return failToWrite(to, writer);
    PcmConverter converter;
    while (const AVFrame *frame = decoder.nextFrame()) {
        if (!writer.write(converter.convert(*frame)))
            return failToWrite(to, writer);
    }
    m_damagedCount = decoder.damagedCount();
    if (!writer.write(converter.flush()))
        return failToWrite(to, writer);
    if (writer.dataSize() == 0)
        return fail(cannotRead.arg(source, tr("Nothing in it can be played.")));
    return writer.commit() || failToWrite(to, writer);
}

bool WavTranscoder::failToWrite(const QString &to, const WavWriter &writer)
{
    m_diskFull = writer.isDiskFull();
    return fail(tr("The file '%1' cannot be written: %2")
                    .arg(QDir::toNativeSeparators(to), writer.errorText()));
}

bool WavTranscoder::fail(const QString &reason)
{
    m_errorText = reason;
    return false;
}

} // namespace velmora
