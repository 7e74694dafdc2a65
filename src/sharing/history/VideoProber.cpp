// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/history/VideoProber.h"

#include "generator/media/MediaFileInfo.h"

namespace velmora
{

VideoProber::VideoProber(QObject *parent) : QObject(parent) {}

VideoProber::~VideoProber()
{
    ++m_look;
}

void VideoProber::look(const QStringList &fileNames)
{
    m_thread.add([this, look = ++m_look, fileNames]() -> TaskThread::Report {
        QHash<QString, VideoFacts> all;
        for (const QString &fileName : fileNames) {
            if (m_look != look)
                break;
            all.insert(fileName, VideoFacts::look(fileName));
        }
        return [this, look, all] {
            if (m_look == look)
                emit looked(all);
        };
    });
}

void VideoProber::probe(const QString &fileName)
{
    if (m_asked.contains(fileName))
        return;
    m_asked.insert(fileName);
    m_thread.add([this, fileName]() -> TaskThread::Report {
        const VideoFacts facts = VideoFacts::look(fileName);
        const qint64 duration = facts.exists ? MediaFileInfo(fileName).duration() : 0;
        return [this, fileName, facts, duration] { onProbed(fileName, facts, duration); };
    });
}

void VideoProber::onProbed(const QString &fileName, const VideoFacts &facts, qint64 duration)
{
    m_asked.remove(fileName);
    m_probes.insert(fileName, {facts, duration});
    emit probed(fileName, facts);
}

qint64 VideoProber::duration(const QString &fileName, const VideoFacts &facts) const
{
    const auto found = m_probes.constFind(fileName);
    const bool same = found != m_probes.constEnd() && found->facts.size == facts.size &&
                      found->facts.date == facts.date;
    return same ? found->duration : -1;
}

} // namespace velmora
