// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <memory>

namespace burn
{
struct burn_drive;
struct burn_drive_info;
} // namespace burn

namespace velmora
{

constexpr int kDiscBlock = 2048; ///< Bytes.

/// A drive, or a file that stands for one ("stdio:PATH"), held for this process alone. Needs a
/// BurnLibrary that outlives it.
class BurnDrive
{
public:
    /// Takes the drive with its tray closed; null when it is busy or gone.
    static std::unique_ptr<BurnDrive> grab(const QString &address);
    ~BurnDrive();
    Q_DISABLE_COPY(BurnDrive)

    burn::burn_drive *handle() const;
    /// Whether writing may start anywhere, so that old content can be replaced without erasing.
    bool isOverwritable() const;
    /// One block; false where nothing can be read.
    bool read(std::uint32_t block, std::uint8_t *buffer);
    /// Looks at the disc anew; after writing to it.
    bool reassess();
    /// Room for a write that starts at @p startBlock (0: where the drive wants it), bytes.
    qint64 freeBytes(std::uint32_t startBlock = 0) const;

private:
    explicit BurnDrive(burn::burn_drive_info *info) : m_info(info) {}

    burn::burn_drive_info *m_info;
    QByteArray m_cache; ///< Blocks read together.
    std::uint32_t m_cacheStart = 0;
};

} // namespace velmora
