// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <QVariantMap>

namespace velmora
{

/// What a token endpoint answered. Any thread.
struct TokenAnswer {
    QVariantMap values; ///< All items of the answer, texts and numbers.
    QString problem;    ///< For the log, when the answer cannot be read at all.

    /// JSON or form data, as @p contentType says.
    static TokenAnswer parse(const QByteArray &contentType, const QByteArray &body);
    /// The answer to a refresh, whose content type does not matter; an empty object is no problem.
    static TokenAnswer fromJson(const QByteArray &body);

    /// Empty when there is none, or none that can be sent in a header.
    QString accessToken() const { return token(QStringLiteral("access_token")); }
    QString refreshToken() const { return token(QStringLiteral("refresh_token")); }

private:
    QString token(const QString &key) const;
};

} // namespace velmora
