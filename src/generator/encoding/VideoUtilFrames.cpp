// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/encoding/VideoUtil.h"

#include "generator/GeneratorLog.h"
#include "generator/encoding/EncoderCommands.h"
#include "generator/transitions/Transition.h"

#include <QFile>

namespace velmora
{

QString VideoUtil::frameFile(const QString &prefix, int number) const
{
    return EncoderCommands::frameFile(m_context.cachePath + QStringLiteral("/images/"), prefix,
                                      number);
}

template <typename Frame> bool VideoUtil::store(const Frame &frame, const QString &path)
{
    QString error;
    if (m_frameWriter.write(frame, path, &error))
        return true;
    qCCritical(generatorLog).noquote() << "CAN NOT SAVE IMG TO:" << path;
    if (m_frameWriter.isDiskFull())
        return failWithFullDisk(path);
    return fail(Failure::Other, error, QStringLiteral("A frame was not saved"));
}

bool VideoUtil::saveFrame(const QImage &frame, const QString &prefix, int number)
{
    return store(frame, frameFile(prefix, number));
}

bool VideoUtil::saveTransitionFrame(TransitionType type, int number, const QImage &from,
                                    const QImage &to, const QString &prefix, int count)
{
    const TransitionPosition position{number - 1, count};
    const std::optional<Fade> fade = fadeAt(type, position);
    if (fade && !from.isNull() && from.size() == to.size())
        return saveFadeFrame(*fade, from, to, frameFile(prefix, number));
    renderTransitionFrame(type, from, to, position, m_transitionFrame);
    return saveFrame(m_transitionFrame, prefix, number);
}

bool VideoUtil::saveFadeFrame(const Fade &fade, const QImage &from, const QImage &to,
                              const QString &path)
{
    QString error;
    const JpegBlocks *frame = m_fadeComposer.compose(fade, from, to, m_frameWriter, &error);
    if (frame)
        return store(*frame, path);
    qCCritical(generatorLog).noquote() << "CAN NOT SAVE IMG TO:" << path;
    return fail(Failure::Other, error, QStringLiteral("A fade was not composed"));
}

void VideoUtil::removeFrames(const QString &prefix, int count) const
{
    for (int number = 1; number <= count; ++number)
        QFile::remove(frameFile(prefix, number));
}

} // namespace velmora
