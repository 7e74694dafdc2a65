// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/BurnDrive.h"

#include <QFile>

#include <libburn/libburn.h>

#include <cstring>

namespace velmora
{

using namespace burn;

namespace
{

constexpr int kBlocksAtOnce = 16;
constexpr int kQuiet = 2; // Flag of burn_read_data: failing to read is no error to report.

} // namespace

std::unique_ptr<BurnDrive> BurnDrive::grab(const QString &address)
{
    QByteArray name = QFile::encodeName(address);
    if (name.isEmpty() || name.size() >= BURN_DRIVE_ADR_LEN)
        return nullptr;
    burn_drive_info *info = nullptr;
    if (burn_drive_scan_and_grab(&info, name.data(), 1) <= 0)
        return nullptr;
    return std::unique_ptr<BurnDrive>(new BurnDrive(info));
}

BurnDrive::~BurnDrive()
{
    burn_drive_release(m_info->drive, 0);
    burn_drive_info_free(m_info);
}

burn_drive *BurnDrive::handle() const
{
    return m_info->drive;
}

bool BurnDrive::isOverwritable() const
{
    burn_multi_caps *caps = nullptr;
    if (burn_disc_get_multi_caps(handle(), BURN_WRITE_NONE, &caps, 0) <= 0)
        return false;
    const bool anywhere = caps->start_adr == 1;
    burn_disc_free_multi_caps(&caps);
    return anywhere;
}

bool BurnDrive::read(std::uint32_t block, std::uint8_t *buffer)
{
    const std::uint32_t start = block - block % kBlocksAtOnce;
    const auto offset = static_cast<int>(block - start) * kDiscBlock;
    if (start != m_cacheStart || m_cache.size() < offset + kDiscBlock) {
        m_cache.resize(kBlocksAtOnce * kDiscBlock);
        m_cacheStart = start;
        off_t count = 0;
        burn_read_data(handle(), static_cast<off_t>(start) * kDiscBlock, m_cache.data(),
                       m_cache.size(), &count, kQuiet);
        m_cache.resize(static_cast<int>(count));
        if (m_cache.size() < offset + kDiscBlock)
            return false;
    }
    std::memcpy(buffer, m_cache.constData() + offset, kDiscBlock);
    return true;
}

bool BurnDrive::reassess()
{
    m_cache.clear();
    return burn_drive_re_assess(handle(), 0) > 0;
}

qint64 BurnDrive::freeBytes(std::uint32_t startBlock) const
{
    if (startBlock == 0)
        return burn_disc_available_space(handle(), nullptr);
    burn_write_opts *options = burn_write_opts_new(handle());
    if (!options)
        return 0;
    burn_write_opts_set_start_byte(options, static_cast<off_t>(startBlock) * kDiscBlock);
    const qint64 bytes = burn_disc_available_space(handle(), options);
    burn_write_opts_free(options);
    return bytes;
}

} // namespace velmora
