// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/DiscWriter.h"

namespace velmora
{

/// The drives that libburn finds, and files that stand for drives.
class DiscWriterLinux : public DiscWriter
{
public:
    /// @p images are paths of files, which may be missing as long as they were not written, of
    /// pipes or of devices.
    explicit DiscWriterLinux(const QStringList &images = {});

    QString fittingTitle(const QString &title) const override;
    QVector<DiscRecorder> recorders() override;
    DiscMedia media(const QString &recorderId) override;
    std::unique_ptr<DiscSession> openSession(const QString &recorderId) override;

private:
    QStringList m_images;
};

} // namespace velmora
