// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/DiscWriter.h"

#include <QCoreApplication>

namespace velmora
{

/// For systems whose disc burning service the program does not use: finds no drives and says why.
class NullDiscWriter : public DiscWriter
{
public:
    QString hindrance() const override
    {
        return QCoreApplication::translate(
            "velmora::DiscWriter", "This copy of the program cannot burn discs on this system.");
    }
    QVector<DiscRecorder> recorders() override { return {}; }
    DiscMedia media(const QString &) override { return {}; }
    std::unique_ptr<DiscSession> openSession(const QString &) override { return nullptr; }
};

} // namespace velmora
