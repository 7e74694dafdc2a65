// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/DiscWriterLinux.h"

#include "platform/PlatformLog.h"
#include "platform/linux/BurnDrive.h"
#include "platform/linux/BurnLibrary.h"
#include "platform/linux/DiscContent.h"
#include "platform/linux/DiscSessionLinux.h"

#include <QFileInfo>

#include <libburn/libburn.h>

#include <chrono>
#include <thread>

namespace velmora
{

using namespace burn;

namespace
{

constexpr std::chrono::milliseconds kPoll(20);

bool canWrite(const burn_drive_info &info)
{
    int profiles[64] = {};
    char current[64] = {};
    int count = 0;
    burn_drive_get_all_profiles(info.drive, &count, profiles, current);
    for (int i = 0; i < count; ++i) {
        switch (profiles[i]) {
        case 0x09: // CD-R
        case 0x0a: // CD-RW
        case 0x11: // DVD-R
        case 0x12: // DVD-RAM
        case 0x13: // DVD-RW
        case 0x14: // DVD-RW
        case 0x15: // DVD-R DL
        case 0x1a: // DVD+RW
        case 0x1b: // DVD+R
        case 0x2b: // DVD+R DL
        case 0x41: // BD-R
        case 0x43: // BD-RE
            return true;
        default:
            break;
        }
    }
    return info.write_cdr || info.write_cdrw || info.write_dvdr || info.write_dvdram;
}

bool describe(burn_drive_info &info, DiscRecorder *recorder)
{
    char address[BURN_DRIVE_ADR_LEN] = {};
    if (burn_drive_get_adr(&info, address) <= 0) {
        qCWarning(lcPlatform) << "get_VolumePathNames failed, result: 'no address'";
        return false;
    }
    recorder->id = QString::fromLocal8Bit(address);
    recorder->productId = QString::fromLatin1(info.product).trimmed();
    recorder->volumes = QStringList{recorder->id};
    return true;
}

} // namespace

DiscWriterLinux::DiscWriterLinux(const QStringList &images) : m_images(images) {}

QString DiscWriterLinux::fittingTitle(const QString &title) const
{
    return DiscImage::fittingTitle(title);
}

QVector<DiscRecorder> DiscWriterLinux::recorders()
{
    QVector<DiscRecorder> found;
    const BurnLibrary library;
    if (library.isReady()) {
        burn_drive_info *drives = nullptr;
        unsigned count = 0;
        int state = 0;
        while ((state = burn_drive_scan(&drives, &count)) == 0)
            std::this_thread::sleep_for(kPoll);
        qCInfo(lcPlatform).noquote()
            << QStringLiteral("burn_drive_scan return '%1' devices").arg(count);
        for (unsigned i = 0; state > 0 && i < count; ++i) {
            DiscRecorder recorder;
            if (canWrite(drives[i]) && describe(drives[i], &recorder))
                found.append(recorder);
        }
        if (state > 0)
            burn_drive_info_free(drives);
    }
    for (const QString &image : qAsConst(m_images)) {
        found.append(
            {QStringLiteral("stdio:") + image, QFileInfo(image).fileName(), QStringList{image}});
    }
    if (found.isEmpty())
        qCWarning(lcPlatform) << "There were no writable devices detected!";
    return found;
}

DiscMedia DiscWriterLinux::media(const QString &recorderId)
{
    const BurnLibrary library;
    if (!library.isReady())
        return {};
    const auto drive = BurnDrive::grab(recorderId);
    const DiscMedia media = drive ? examineDisc(*drive).media : DiscMedia();
    BurnLibrary::logMessages();
    return media;
}

std::unique_ptr<DiscSession> DiscWriterLinux::openSession(const QString &recorderId)
{
    auto session = std::make_unique<DiscSessionLinux>();
    if (!session->open(recorderId))
        return nullptr;
    return session;
}

std::unique_ptr<DiscWriter> createDiscWriter()
{
    const QString images = qEnvironmentVariable("VELMORA_DISC_IMAGES");
    return std::make_unique<DiscWriterLinux>(images.split(QLatin1Char(':'), Qt::SkipEmptyParts));
}

void removeBurnLeftovers()
{
    // Here burns make no files.
}

} // namespace velmora
