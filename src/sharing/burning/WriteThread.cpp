// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/burning/WriteThread.h"

#include "platform/DiscWriter.h"
#include "sharing/SharingLog.h"

namespace velmora
{

WriteThread::WriteThread(DiscWriter &writer, const BurnJob &job, QObject *parent)
    : QThread(parent), m_writer(writer), m_job(job)
{
}

WriteThread::~WriteThread()
{
    cancel();
    wait();
}

void WriteThread::run()
{
    qCInfo(lcSharing) << "Burn begin thread";
    m_succeeded = burn();
}

DiscProgress WriteThread::reporter(const QString &logText)
{
    return [this, logText, logged = -1](int current, int total) mutable {
        // The log gets a line per percent, not one per look at the drive.
        const int percent = total > 0 ? static_cast<int>(100LL * current / total) : 0;
        if (percent != logged)
            qCInfo(lcSharing).noquote() << logText.arg(current).arg(total);
        logged = percent;
        emit progress(current, total);
    };
}

/// Whether the burn goes on after a step. A disc that can be written once is spoilt by the first
/// byte, so a cancelled burn must not get as far as that.
bool WriteThread::proceeds(bool succeeded) const
{
    return succeeded && !m_cancelled;
}

bool WriteThread::burn()
{
    const auto session = m_writer.openSession(m_job.recorderId);
    if (!proceeds(session != nullptr))
        return false;
    if (m_job.erase) {
        qCInfo(lcSharing) << "Burn begin erasing";
        if (!proceeds(session->erase(reporter(QStringLiteral("Burn erase progress %1 from %2")))))
            return false;
    }
    if (!proceeds(session->checkMedia()))
        return false;
    qCInfo(lcSharing) << "Burn creating FS";
    if (!proceeds(session->createImage(m_job.video, m_job.fileName, m_job.volumeName)) ||
        !proceeds(session->finishImage(m_job.finalize)))
        return false;
    if (!session->write(reporter(QStringLiteral("Burn write progress %1 from %2")), m_cancelled))
        return false;
    qCInfo(lcSharing) << "Burn writing finished";
    return true;
}

} // namespace velmora
