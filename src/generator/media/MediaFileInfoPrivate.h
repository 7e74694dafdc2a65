// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "generator/media/MediaInput.h"

#include <QString>

namespace velmora
{

/// The opened file behind a MediaFileInfo.
class MediaFileInfoPrivate
{
    Q_DECLARE_TR_FUNCTIONS(velmora::MediaFileInfo)
public:
    explicit MediaFileInfoPrivate(const QString &source);

    bool isValid() const;
    /// The first sound stream's duration in ms, else the container's; 0 when neither says. A cover
    /// has none to give.
    qint64 duration() const;

    QString path;
    MediaInput input;
    QString errorText;

private:
    void load();
};

} // namespace velmora
