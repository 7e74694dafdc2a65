// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/DiscContent.h"

#include "platform/linux/BurnDrive.h"

#include <QtEndian>

#include <libburn/libburn.h>

#include <algorithm>
#include <array>
#include <cstring>

namespace velmora
{

using namespace burn;

namespace
{

using Block = std::array<std::uint8_t, kDiscBlock>;

// ISO 9660: the descriptors start 16 blocks after the session.
constexpr std::uint32_t kDescriptor = 16;
constexpr std::uint32_t kDescriptorEnd = 32;
constexpr std::uint32_t kUdfAnchor = 256;
constexpr int kVolumeName = 40;
constexpr int kVolumeNameLength = 32;
constexpr int kVolumeSize = 80;
constexpr int kApplicationUse = 883;
constexpr std::uint32_t kAlignment = 16; // Blocks; all rewritable discs can start there.

QString statusName(burn_disc_status status)
{
    switch (status) {
    case BURN_DISC_UNREADY:
        return QStringLiteral("not ready");
    case BURN_DISC_BLANK:
        return QStringLiteral("blank");
    case BURN_DISC_EMPTY:
        return QStringLiteral("no disc");
    case BURN_DISC_APPENDABLE:
        return QStringLiteral("appendable");
    case BURN_DISC_FULL:
        return QStringLiteral("closed");
    case BURN_DISC_UNGRABBED:
        return QStringLiteral("not held");
    case BURN_DISC_UNSUITABLE:
        return QStringLiteral("unsuitable");
    }
    return QStringLiteral("unknown");
}

/// The descriptor of the session at @p start.
bool readDescriptor(BurnDrive &drive, std::uint32_t start, Block *block)
{
    return drive.read(start + kDescriptor, block->data()) &&
           std::memcmp(block->data(), "\1CD001", 6) == 0;
}

QString volumeName(const Block &descriptor)
{
    const auto *text = reinterpret_cast<const char *>(descriptor.data() + kVolumeName);
    return QString::fromUtf8(text, kVolumeNameLength).remove(QChar::Null).trimmed();
}

std::uint32_t imageEnd(const Block &descriptor)
{
    const auto size = qFromLittleEndian<quint32>(descriptor.data() + kVolumeSize);
    return (size + kAlignment - 1) / kAlignment * kAlignment;
}

bool isFinalized(const Block &descriptor)
{
    return std::memcmp(descriptor.data() + kApplicationUse, kFinalizedMark,
                       sizeof kFinalizedMark - 1) == 0;
}

/// Whether nothing lies where file systems put their heads.
bool looksBlank(BurnDrive &drive)
{
    Block block;
    const auto isZero = [&block](std::uint32_t, bool read) {
        return !read ||
               std::all_of(block.begin(), block.end(), [](auto byte) { return byte == 0; });
    };
    for (std::uint32_t i = 0; i < kDescriptorEnd; ++i) {
        if (!isZero(i, drive.read(i, block.data())))
            return false;
    }
    return isZero(kUdfAnchor, drive.read(kUdfAnchor, block.data()));
}

/// What an erased disc could take: what is free, and what is used.
qint64 erasedCapacity(const BurnDrive &drive, qint64 freeBytes)
{
    int blocks = 0;
    if (burn_get_read_capacity(drive.handle(), &blocks, 0) <= 0)
        blocks = 0;
    int format = 0;
    int formats = 0;
    unsigned spare = 0;
    off_t size = 0;
    if (burn_disc_get_formats(drive.handle(), &format, &size, &spare, &formats) <= 0)
        size = 0;
    return std::max<qint64>(freeBytes + qint64(blocks) * kDiscBlock, size);
}

void examineOverwritable(BurnDrive &drive, DiscContent *content)
{
    DiscMedia &media = content->media;
    Block descriptor;
    if (readDescriptor(drive, 0, &descriptor)) {
        content->readable = true;
        content->newSession = imageEnd(descriptor);
        media.volumeName = volumeName(descriptor);
        const qint64 space = isFinalized(descriptor) ? 0 : drive.freeBytes(content->newSession);
        media.appendable = space > 0;
        media.freeBytes = space;
    } else if (looksBlank(drive)) {
        media.blank = true;
        media.freeBytes = drive.freeBytes();
        return;
    }
    media.erasable = true;
    if (!media.appendable)
        media.freeBytes = drive.freeBytes();
    content->status = media.appendable ? QStringLiteral("appendable, overwritable")
                                       : QStringLiteral("closed, overwritable");
}

void examineUsed(BurnDrive &drive, burn_disc_status status, DiscContent *content)
{
    DiscMedia &media = content->media;
    int start = 0;
    Block descriptor;
    if (burn_disc_get_msc1(drive.handle(), &start) > 0 && start >= 0) {
        content->oldSession = static_cast<std::uint32_t>(start);
        content->readable = readDescriptor(drive, content->oldSession, &descriptor);
    }
    if (content->readable)
        media.volumeName = volumeName(descriptor);
    int last = 0;
    int next = 0;
    const bool known =
        burn_disc_track_lba_nwa(drive.handle(), nullptr, 0, &last, &next) > 0 && next > 0;
    const qint64 space = status == BURN_DISC_APPENDABLE ? drive.freeBytes() : 0;
    media.appendable = space > 0 && content->readable && known;
    content->newSession = known ? static_cast<std::uint32_t>(next) : 0;
    media.erasable = burn_disc_erasable(drive.handle()) != 0;
    if (media.appendable)
        media.freeBytes = space;
    else if (media.erasable)
        media.freeBytes = erasedCapacity(drive, space);
}

} // namespace

DiscContent examineDisc(BurnDrive &drive)
{
    DiscContent content;
    const burn_disc_status status = burn_disc_get_status(drive.handle());
    content.status = statusName(status);
    content.overwritable = status == BURN_DISC_BLANK && drive.isOverwritable();
    content.media.present =
        status == BURN_DISC_BLANK || status == BURN_DISC_APPENDABLE || status == BURN_DISC_FULL;
    if (content.overwritable) {
        examineOverwritable(drive, &content);
    } else if (status == BURN_DISC_BLANK) {
        content.media.blank = true;
        content.media.freeBytes = drive.freeBytes();
    } else if (content.media.present) {
        examineUsed(drive, status, &content);
    }
    return content;
}

} // namespace velmora
