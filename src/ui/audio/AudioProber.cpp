// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/audio/AudioProber.h"

#include "generator/media/MediaFileInfo.h"
#include "generator/media/SoundChecker.h"
#include "platform/ShortcutResolver.h"
#include "project/documents/MediaSuffixes.h"
#include "services/MetricSender.h"
#include "ui/UiLog.h"

#include <QDirIterator>
#include <QFileInfo>

namespace velmora
{

qint64 soundDuration(const QString &path)
{
    return checkSoundFile(path).isEmpty() ? MediaFileInfo(path).duration() : -1;
}

/// One request of add(), on the working thread.
class AudioProber::Search
{
public:
    Search(AudioProber &prober, int generation) : m_prober(prober), m_generation(generation) {}

    void look(const QString &given)
    {
        if (isCancelled())
            return;
        const QString target = resolveShortcut(given);
        if (target != given)
            qCDebug(lcUi) << "is shortcut";
        if (QFileInfo(target).isDir())
            lookInto(given, QFileInfo(target).absoluteFilePath());
        else
            lookAt(given, target);
    }

    AudioImport import;

private:
    bool isCancelled() const { return m_prober.m_additions.generation != m_generation; }

    /// Music below a folder: folder by folder in natural order.
    QStringList musicBelow(const QString &folder) const
    {
        QStringList files;
        // Links to folders are not followed, so a search always ends.
        QDirIterator entries(folder, QDir::Files | QDir::NoDotAndDotDot,
                             QDirIterator::Subdirectories);
        while (entries.hasNext() && !isCancelled()) {
            const QString path = entries.next();
            if (isAudioPath(path))
                files.append(path);
        }
        sortByFolder(&files);
        return files;
    }

    void lookInto(const QString &given, const QString &folder)
    {
        const QStringList paths = musicBelow(folder);
        if (paths.isEmpty())
            import.refused.append(given);
        for (const QString &path : paths) {
            if (isCancelled())
                return;
            const QString target = resolveShortcut(path);
            if (target != path)
                qCDebug(lcUi) << "is shortcut";
            lookAt(path, target);
        }
    }

    void lookAt(const QString &given, const QString &path)
    {
        const qint64 milliseconds = path.isEmpty() ? -1 : soundDuration(path);
        if (milliseconds < 0) {
            MetricSender::instance().record(QStringLiteral("err4"), 1);
            import.refused.append(given);
        } else {
            import.tracks.append({QFileInfo(path).absoluteFilePath(), milliseconds});
        }
        emit m_prober.lookedAt(m_generation, ++m_looked);
    }

    AudioProber &m_prober;
    const int m_generation;
    int m_looked = 0;
};

AudioProber::AudioProber(QObject *parent) : QObject(parent)
{
    connect(
        this, &AudioProber::lookedAt, this,
        [this](int generation, int looked) {
            if (m_additions.generation == generation)
                emit progress(looked);
        },
        Qt::QueuedConnection);
}

AudioProber::~AudioProber()
{
    cancel();
}

void AudioProber::add(const QStringList &paths)
{
    ++m_adding;
    run(&m_additions, [this, paths](int generation) -> TaskThread::Report {
        Search search(*this, generation);
        for (const QString &path : paths)
            search.look(path);
        return [this, import = search.import] {
            --m_adding;
            emit found(import);
        };
    });
}

void AudioProber::measure(const QString &path)
{
    run(&m_measurements, [this, path](int) -> TaskThread::Report {
        const qint64 milliseconds = soundDuration(path);
        return [this, path, milliseconds] { emit measured(path, milliseconds); };
    });
}

void AudioProber::cancelAdding()
{
    drop(&m_additions);
    m_adding = 0;
}

void AudioProber::cancel()
{
    cancelAdding();
    drop(&m_measurements);
}

void AudioProber::drop(Queue *queue)
{
    const std::lock_guard<std::mutex> locker(m_mutex);
    ++queue->generation;
    queue->requests.clear();
}

void AudioProber::run(Queue *queue, Request request)
{
    {
        const std::lock_guard<std::mutex> locker(m_mutex);
        queue->requests.push_back(std::move(request));
    }
    m_thread.add([this] { return next(); });
}

TaskThread::Report AudioProber::next()
{
    Request request;
    Queue *queue = nullptr;
    int generation = 0;
    {
        const std::lock_guard<std::mutex> locker(m_mutex);
        queue = m_additions.requests.empty() ? &m_measurements : &m_additions;
        if (queue->requests.empty())
            return [] {};
        request = std::move(queue->requests.front());
        queue->requests.pop_front();
        generation = queue->generation;
    }
    return [queue, generation, tell = request(generation)] {
        if (queue->generation == generation)
            tell();
    };
}

} // namespace velmora
