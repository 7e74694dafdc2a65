// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/history/VideoProber.h"

#include "generator/media/MediaFileInfo.h"

#include <QtConcurrent>

namespace velmora
{

VideoProber::VideoProber(QObject *parent) : QObject(parent)
{
    m_pool.setMaxThreadCount(1); // One disk, one reader.
}

VideoProber::~VideoProber()
{
    m_pool.clear();
    m_pool.waitForDone();
}

void VideoProber::look(const QStringList &fileNames)
{
    QtConcurrent::run(&m_pool, [this, fileNames] {
        QHash<QString, VideoFacts> all;
        for (const QString &fileName : fileNames)
            all.insert(fileName, VideoFacts::look(fileName));
        QMetaObject::invokeMethod(
            this, [this, all] { emit looked(all); }, Qt::QueuedConnection);
    });
}

void VideoProber::probe(const QString &fileName)
{
    if (m_asked.contains(fileName))
        return;
    m_asked.insert(fileName);
    QtConcurrent::run(&m_pool, [this, fileName] {
        const VideoFacts facts = VideoFacts::look(fileName);
        const qint64 duration = facts.exists ? MediaFileInfo(fileName).duration() : 0;
        QMetaObject::invokeMethod(
            this, [this, fileName, facts, duration] { onProbed(fileName, facts, duration); },
            Qt::QueuedConnection);
    });
}

void VideoProber::onProbed(const QString &fileName, const VideoFacts &facts, qint64 duration)
{
    m_asked.remove(fileName);
    m_probes.insert(fileName, {facts, duration});
    emit probed(fileName);
}

qint64 VideoProber::duration(const QString &fileName, const VideoFacts &facts) const
{
    const auto found = m_probes.constFind(fileName);
    const bool same = found != m_probes.constEnd() && found->facts.size == facts.size &&
                      found->facts.date == facts.date;
    return same ? found->duration : -1;
}

} // namespace velmora
