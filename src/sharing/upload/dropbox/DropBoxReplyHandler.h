// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sharing/upload/signin/LoopbackReplyHandler.h"

namespace velmora
{

/// The file-sharing service's reply handler: its redirect address is registered by name.
class DropBoxReplyHandler : public LoopbackReplyHandler
{
    Q_OBJECT
public:
    using LoopbackReplyHandler::LoopbackReplyHandler;

    QString callback() const override
    {
        return QStringLiteral("http://localhost:%1%2").arg(QString::number(signInPort()), path());
    }

protected:
    QString path() const override { return QStringLiteral("/cb"); }
};

} // namespace velmora
