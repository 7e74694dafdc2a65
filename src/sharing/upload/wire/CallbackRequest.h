// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <QVariantMap>

#include <optional>

namespace velmora
{

/// The first line of a request to the loopback port at which a sign-in waits. Anything may connect
/// there. Any thread.
struct CallbackRequest {
    QByteArray method;
    QString path;       ///< Decoded; begins with a slash.
    QVariantMap values; ///< The query's items, decoded; of repeated ones the first counts.

    /// @p line without its line end; nothing if it is no request line of HTTP/1.
    static std::optional<CallbackRequest> parse(const QByteArray &line);

    QString value(const char *key) const { return values.value(QLatin1String(key)).toString(); }
};

} // namespace velmora
