// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/DiscSession.h"
#include "platform/linux/BurnDrive.h"
#include "platform/linux/BurnLibrary.h"
#include "platform/linux/DiscContent.h"
#include "platform/linux/DiscImage.h"

#include <QDateTime>
#include <QFileInfo>

#include <memory>

namespace burn
{
struct burn_progress;
}

namespace velmora
{

/// Burns with libburn and libisofs.
class DiscSessionLinux : public DiscSession
{
public:
    DiscSessionLinux();
    ~DiscSessionLinux() override;

    /// Takes the drive; false when it is busy or gone.
    bool open(const QString &recorderId);

    bool erase(const DiscProgress &progress) override;
    bool checkMedia() override;
    bool createImage(const QString &video, const QString &fileName,
                     const QString &volumeName) override;
    bool finishImage(bool finalize) override;
    bool write(const DiscProgress &progress, const std::atomic_bool &cancelled) override;

private:
    bool eraseHeads();
    bool isBusy(burn::burn_progress *state) const;
    bool waitForErase(const DiscProgress &progress);
    bool waitForWrite(const DiscProgress &progress, const std::atomic_bool &cancelled);
    bool writeSession(const DiscProgress &progress, const std::atomic_bool &cancelled);
    bool writeHead();

    BurnLibrary m_library;
    std::unique_ptr<BurnDrive> m_drive;
    DiscContent m_content;
    std::unique_ptr<DiscImage> m_image;
    bool m_finalize = false;
    QFileInfo m_video;
    qint64 m_videoSize = 0;
    QDateTime m_videoTime;
};

} // namespace velmora
