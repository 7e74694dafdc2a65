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

bool VideoUtil::saveFrame(const QImage &frame, const QString &prefix, int number)
{
    const QString path = frameFile(prefix, number);
    QString error;
    if (m_frameWriter.write(frame, path, &error))
        return true;
    qCCritical(generatorLog).noquote() << "CAN NOT SAVE IMG TO:" << path;
    return fail(error);
}

bool VideoUtil::saveTransitionFrame(TransitionType type, int number, const QImage &from,
                                    const QImage &to, const QString &prefix, int count)
{
    renderTransitionFrame(type, from, to, {number - 1, count}, m_transitionFrame);
    return saveFrame(m_transitionFrame, prefix, number);
}

void VideoUtil::removeFrames(const QString &prefix, int count) const
{
    for (int number = 1; number <= count; ++number)
        QFile::remove(frameFile(prefix, number));
}

} // namespace velmora
