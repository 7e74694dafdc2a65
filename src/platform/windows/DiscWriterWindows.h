// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/DiscWriter.h"
#include "platform/windows/ImapiFactory.h"

namespace velmora
{

/// The drives that the Image Mastering API of Windows, version 2, finds.
class DiscWriterWindows : public DiscWriter
{
public:
    explicit DiscWriterWindows(
        std::unique_ptr<ImapiFactory> factory = std::make_unique<ImapiFactory>());

    QString hindrance() const override;
    QString fittingTitle(const QString &title) const override;
    QVector<DiscRecorder> recorders() override;
    DiscMedia media(const QString &recorderId) override;
    std::unique_ptr<DiscSession> openSession(const QString &recorderId) override;

private:
    QVector<DiscRecorder> listRecorders(IDiscMaster2 *master);
    bool describe(IDiscMaster2 *master, LONG index, DiscRecorder *recorder);

    const std::unique_ptr<ImapiFactory> m_factory;
    std::atomic_bool m_missing{false}; ///< The service does not exist.
};

} // namespace velmora
