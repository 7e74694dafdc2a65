// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sharing/upload/signin/LoopbackReplyHandler.h"

namespace velmora
{

/// The video service's reply handler, which also tells the uploader that the browser came back.
class YoutubeHandler : public LoopbackReplyHandler
{
    Q_OBJECT
public:
    explicit YoutubeHandler(quint16 port, QObject *parent = nullptr)
        : LoopbackReplyHandler(port, parent)
    {
        connect(this, &QAbstractOAuthReplyHandler::callbackReceived, this,
                [this](const QVariantMap &values) { emit convertedCallbackReceived(values); });
    }

signals:
    void convertedCallbackReceived(QVariantMap data);
};

} // namespace velmora
