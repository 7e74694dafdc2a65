// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/SessionValues.h"

#include "platform/PlatformLog.h"
#include "platform/SessionId.h"

#include <QDir>
#include <QFile>
#include <QLockFile>
#include <QSaveFile>

namespace velmora
{

namespace
{

constexpr char kPaused[] = "is_paused";
constexpr char kCanceled[] = "is_canceled";
constexpr qint64 kMaximumFile = 4096; // bytes
constexpr int kLockTimeout = 5000;    // ms
constexpr int kStaleLockAge = 10000;  // ms

struct Values {
    bool paused = false;
    bool canceled = false;
};

// QSettings is not used: its cache tells a changed file by size and time stamp, so that of two
// changes within one tick of the file system's clock a polling reader may miss the second for good.
class SessionFile : public SessionValues
{
public:
    SessionFile(const QString &folder, const QString &name)
        : m_folder(folder), m_file(folder + QLatin1Char('/') + name + QStringLiteral(".ini")),
          m_lockFile(m_file + QStringLiteral(".lock"))
    {
    }

    void clear() override
    {
        QLockFile lock(m_lockFile);
        if (QFile::exists(m_file) && acquire(lock) && !QFile::remove(m_file))
            qCWarning(lcPlatform) << "Cannot remove session values" << m_file;
    }

    void setPaused(bool paused) override { change(&Values::paused, paused); }
    void setCanceled(bool canceled) override { change(&Values::canceled, canceled); }
    bool isPaused() const override { return read().paused; }
    bool isCanceled() const override { return read().canceled; }

private:
    // Readers need no lock: the file is only ever replaced as a whole.
    Values read() const
    {
        Values values;
        QFile file(m_file);
        if (!file.open(QIODevice::ReadOnly))
            return values;
        const QList<QByteArray> lines = file.read(kMaximumFile).split('\n');
        for (const QByteArray &line : lines) {
            const int separator = line.indexOf('=');
            if (separator < 0)
                continue;
            const QByteArray key = line.left(separator).trimmed();
            const bool value = line.mid(separator + 1).trimmed().toInt() == 1;
            if (key == kPaused)
                values.paused = value;
            else if (key == kCanceled)
                values.canceled = value;
        }
        return values;
    }

    void change(bool Values::*member, bool value)
    {
        QLockFile lock(m_lockFile);
        if (!QDir().mkpath(m_folder) || !acquire(lock))
            return;
        Values values = read();
        values.*member = value;
        const QByteArray text = QByteArrayLiteral("[General]\n") + kPaused + '=' +
                                QByteArray::number(values.paused) + '\n' + kCanceled + '=' +
                                QByteArray::number(values.canceled) + '\n';
        QSaveFile file(m_file);
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.commit())
            qCWarning(lcPlatform) << "Cannot write session values" << m_file << file.errorString();
    }

    bool acquire(QLockFile &lock) const
    {
        lock.setStaleLockTime(kStaleLockAge);
        if (lock.tryLock(kLockTimeout))
            return true;
        qCWarning(lcPlatform) << "Cannot lock session values" << m_file;
        return false;
    }

    const QString m_folder;
    const QString m_file;
    const QString m_lockFile;
};

} // namespace

std::unique_ptr<SessionValues> createSessionValues(const QString &sessionId,
                                                   const QString &dataFolder)
{
    return std::make_unique<SessionFile>(dataFolder + QStringLiteral("/sessions"),
                                         sessionIdToName(sessionId));
}

} // namespace velmora
