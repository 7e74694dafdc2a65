// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/DiscSessionLinux.h"

#include "platform/PlatformLog.h"
#include "platform/linux/BurnPlan.h"
#include "platform/linux/PipeSignalBlock.h"

#include <QByteArray>
#include <QElapsedTimer>

#include <libburn/libburn.h>

#include <algorithm>
#include <chrono>
#include <thread>

namespace velmora
{

using namespace burn;

namespace
{

constexpr std::chrono::milliseconds kPoll(50);
constexpr int kLongestSilence = 20000; ///< ms that an idle drive's thread may take to end
constexpr int kHeadBytes = 64 * 1024;
constexpr int kUdfAnchor = 256;

bool fail(const char *step, const QString &reason)
{
    qCWarning(lcPlatform).noquote()
        << QStringLiteral("'%1' failed, result: '%2'").arg(QLatin1String(step), reason);
    return false;
}

bool overwrite(const BurnDrive &drive, qint64 start, QByteArray bytes)
{
    return burn_random_access_write(drive.handle(), start, bytes.data(), bytes.size(), 1) == 1;
}

} // namespace

DiscSessionLinux::DiscSessionLinux() = default;

DiscSessionLinux::~DiscSessionLinux()
{
    m_image.reset();
    m_drive.reset();
}

bool DiscSessionLinux::open(const QString &recorderId)
{
    if (!m_library.isReady())
        return false;
    m_drive = BurnDrive::grab(recorderId);
    BurnLibrary::logMessages();
    if (!m_drive)
        return fail("InitializeDiscRecorder", recorderId);
    m_content = examineDisc(*m_drive);
    return true;
}

bool DiscSessionLinux::isBusy(burn_progress *state) const
{
    return burn_drive_get_status(m_drive->handle(), state) != BURN_DRIVE_IDLE;
}

bool DiscSessionLinux::waitForErase(const DiscProgress &progress)
{
    burn_progress state = {};
    while (isBusy(&state)) {
        if (state.sectors > 0)
            progress(qBound(0, state.sector, state.sectors), state.sectors);
        std::this_thread::sleep_for(kPoll);
    }
    return burn_drive_wrote_well(m_drive->handle()) == 1 && !BurnLibrary::logMessages().errors;
}

/// The drive can look idle while libburn's thread still uses it and the image, after a failure even
/// before it is asked for the first time. So the thread's own last message is awaited, unless
/// libburn refused to start one.
bool DiscSessionLinux::waitForWrite(const DiscProgress &progress, const std::atomic_bool &cancelled)
{
    burn_progress state = {};
    int current = 0;
    int total = 1;
    BurnLibrary::Messages all;
    bool stopped = false;
    QElapsedTimer idle;
    idle.start();
    const auto note = [&all] {
        const BurnLibrary::Messages messages = BurnLibrary::logMessages();
        all.errors |= messages.errors;
        all.writeEnded |= messages.writeEnded;
        all.writeRefused |= messages.writeRefused;
    };
    for (note(); !all.writeRefused && !idle.hasExpired(kLongestSilence); note()) {
        if (isBusy(&state))
            idle.restart();
        else if (all.writeEnded)
            break;
        // At start and end of its work libburn counts other things for a moment.
        total = std::max(total, state.sectors);
        current = qBound(current, state.sector, total);
        if (state.sectors > 0)
            progress(current, total);
        if (cancelled && !stopped) {
            burn_drive_cancel(m_drive->handle());
            stopped = true;
        }
        std::this_thread::sleep_for(kPoll);
    }
    const bool well =
        burn_drive_wrote_well(m_drive->handle()) == 1 && all.writeEnded && !all.errors && !stopped;
    if (well)
        progress(total, total);
    return well;
}

bool DiscSessionLinux::erase(const DiscProgress &progress)
{
    if (m_content.overwritable) {
        if (!eraseHeads())
            return fail("EraseMedia", QStringLiteral("the disc's start cannot be written"));
        progress(1, 1);
    } else {
        burn_disc_erase(m_drive->handle(), 1);
        if (!waitForErase(progress))
            return fail("EraseMedia", m_content.status);
    }
    m_drive->reassess();
    m_content = examineDisc(*m_drive);
    return m_content.media.blank || fail("EraseMedia", m_content.status);
}

/// A disc that can be overwritten is empty once no file system can be found on it.
bool DiscSessionLinux::eraseHeads()
{
    const PipeSignalBlock block;
    if (!overwrite(*m_drive, 0, QByteArray(kHeadBytes, '\0')))
        return false;
    int blocks = 0;
    const bool reaches =
        burn_get_read_capacity(m_drive->handle(), &blocks, 0) > 0 && blocks > kUdfAnchor;
    return !reaches ||
           overwrite(*m_drive, qint64(kUdfAnchor) * kDiscBlock, QByteArray(16 * kDiscBlock, '\0'));
}

bool DiscSessionLinux::checkMedia()
{
    qCInfo(lcPlatform).noquote()
        << QStringLiteral("Current media status: '%1'.").arg(m_content.status);
    if (m_content.media.blank || m_content.media.appendable)
        return true;
    qCWarning(lcPlatform) << "Invalid media type";
    return false;
}

bool DiscSessionLinux::createImage(const QString &video, const QString &fileName,
                                   const QString &volumeName)
{
    m_image = std::make_unique<DiscImage>();
    m_video = QFileInfo(video);
    m_videoSize = m_video.size();
    m_videoTime = m_video.lastModified();
    const bool made =
        m_image->begin(*m_drive, m_content, volumeName) && m_image->addFile(video, fileName);
    BurnLibrary::logMessages();
    return made;
}

bool DiscSessionLinux::finishImage(bool finalize)
{
    m_finalize = finalize;
    if (!m_image || !m_image->finish(finalize))
        return false;
    return m_image->size() <= m_content.media.freeBytes ||
           fail("CreateResultImage", QStringLiteral("%1 bytes do not fit into %2")
                                         .arg(m_image->size())
                                         .arg(m_content.media.freeBytes));
}

bool DiscSessionLinux::write(const DiscProgress &progress, const std::atomic_bool &cancelled)
{
    const PipeSignalBlock block;
    if (!writeSession(progress, cancelled) || !writeHead()) {
        qCWarning(lcPlatform).noquote()
            << QStringLiteral("Write failed, result: '%1'")
                   .arg(cancelled ? QStringLiteral("cancelled") : m_content.status);
        return false;
    }
    // Where a file ends too soon, libisofs fills up with zeros.
    m_video.refresh();
    if (m_video.size() != m_videoSize || m_video.lastModified() != m_videoTime)
        return fail("Write", QStringLiteral("the video was changed meanwhile"));
    return true;
}

bool DiscSessionLinux::writeSession(const DiscProgress &progress, const std::atomic_bool &cancelled)
{
    BurnPlan plan(*m_drive, m_image->source());
    if (!plan.prepare(m_finalize, m_content))
        return fail("put_ForceMediaToBeClosed", plan.reason());
    qCInfo(lcPlatform) << "Burn writing";
    burn_disc_write(plan.options(), plan.disc());
    return waitForWrite(progress, cancelled);
}

bool DiscSessionLinux::writeHead()
{
    const QByteArray head = m_image->head();
    return head.isEmpty() || overwrite(*m_drive, 0, head);
}

} // namespace velmora
