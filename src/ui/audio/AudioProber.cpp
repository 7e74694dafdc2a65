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
#include <QRunnable>

#include <map>

namespace velmora
{

namespace
{

constexpr int kAddPriority = 1;
constexpr int kMeasurePriority = 0;

} // namespace

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
    bool isCancelled() const { return m_prober.m_generation != m_generation; }

    /// Music below a folder: folder by folder in natural order.
    QStringList musicBelow(const QString &folder) const
    {
        std::map<QString, QStringList> files; // by folder
        // Links to folders are not followed, so a search always ends.
        QDirIterator entries(folder, QDir::Files | QDir::NoDotAndDotDot,
                             QDirIterator::Subdirectories);
        while (entries.hasNext() && !isCancelled()) {
            const QString path = entries.next();
            if (isAudioPath(path))
                files[QFileInfo(path).path()].append(path);
        }
        QStringList folders;
        for (const auto &entry : files)
            folders.append(entry.first);
        sortNaturally(&folders);
        QStringList sorted;
        for (const QString &name : qAsConst(folders)) {
            sortNaturally(&files[name]);
            sorted += files[name];
        }
        return sorted;
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
        const int looked = ++m_looked;
        m_prober.post(m_generation, [&prober = m_prober, looked] { emit prober.progress(looked); });
    }

    AudioProber &m_prober;
    const int m_generation;
    int m_looked = 0;
};

AudioProber::AudioProber(QObject *parent) : QObject(parent)
{
    // One thread: files keep their order, and slow disks are not made to seek.
    m_pool.setMaxThreadCount(1);
}

AudioProber::~AudioProber()
{
    cancel();
    m_pool.waitForDone();
}

void AudioProber::add(const QStringList &paths, int row)
{
    ++m_adding;
    run(kAddPriority, [this, paths, row](int generation) {
        Search search(*this, generation);
        for (const QString &path : paths)
            search.look(path);
        search.import.row = row;
        post(generation, [this, import = search.import] {
            --m_adding;
            emit found(import);
        });
    });
}

void AudioProber::measure(const QString &path)
{
    run(kMeasurePriority, [this, path](int generation) {
        const qint64 milliseconds = soundDuration(path);
        post(generation, [this, path, milliseconds] { emit measured(path, milliseconds); });
    });
}

void AudioProber::cancel()
{
    ++m_generation;
    m_pool.clear();
    m_adding = 0;
}

void AudioProber::run(int priority, const std::function<void(int)> &work)
{
    const int generation = m_generation;
    m_pool.start(QRunnable::create([this, generation, work] {
                     if (m_generation == generation)
                         work(generation);
                 }),
                 priority);
}

void AudioProber::post(int generation, const std::function<void()> &tell)
{
    QMetaObject::invokeMethod(
        this,
        [this, generation, tell] {
            if (m_generation == generation)
                tell();
        },
        Qt::QueuedConnection);
}

} // namespace velmora
