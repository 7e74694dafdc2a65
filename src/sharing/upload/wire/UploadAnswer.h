// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QString>

namespace velmora
{

/// What the video service or the drive answered to an upload. Any thread.
struct UploadAnswer {
    QJsonObject resource; ///< The new file's resource; empty when the answer was no JSON object.
    bool isError = true;  ///< The answer holds "error", or no identifier.
    QString message;      ///< The error's message, plain; may be empty.

    static UploadAnswer parse(const QByteArray &body);

    QString id() const { return resource.value(QLatin1String("id")).toString(); }
    /// "alternateLink" if it is a web address, else empty.
    QString alternateLink() const;
    /// The resource with its snippet's title replaced.
    QJsonObject withTitle(const QString &title) const;
};

} // namespace velmora
