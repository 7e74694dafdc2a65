// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/preview/PreviewScript.h"

#include <QImage>
#include <QObject>

namespace velmora
{

/// Where a player gets its frames from. GUI thread.
class FrameSource : public QObject
{
    Q_OBJECT
public:
    using QObject::QObject;

    /// Asks for the frames of a slide from @p firstFrame on. They arrive in order, those of earlier
    /// requests first.
    virtual void request(int buffId, const PreviewScript::Pointer &script, int slide,
                         int firstFrame) = 0;
    /// Forgets all requests; nothing of them arrives any more, and nothing of what arrived counts
    /// as held.
    virtual void cancel() = 0;
    /// Pictures are held no longer. Only a bounded number is given out beyond those.
    virtual void release(int pictures) = 0;

signals:
    void frameGenerated(int buffId, int itemIndex, int frame, const QImage &picture);
};

} // namespace velmora
