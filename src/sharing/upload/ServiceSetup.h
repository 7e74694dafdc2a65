// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sharing/upload/net/NetworkOptions.h"

#include <QString>
#include <QUrl>

namespace velmora
{

class ServicesConfig;

/// Everything about one service that is configuration or fixed by the service: addresses, client
/// registration, sign-in parameters. Read from the section of the service's key: "accounts", "api",
/// "upload", "web" and "content" are addresses, "client_id" and "client_secret" the registration,
/// "folder" the name of the application's folder, "port" another port for the sign-in's answer.
/// Plain value.
struct ServiceSetup {
    QString serviceKey;
    QString tokenKey; ///< Of the stored token: "yt", "gd" or "db".
    QString clientId;
    QString clientSecret;
    QString scope; ///< May be empty.
    QUrl authorizationUrl;
    QUrl tokenUrl;
    QUrl apiUrl;    ///< This and those below without a path of their own.
    QUrl uploadUrl; ///< Where the bytes go.
    QUrl webUrl;    ///< Where the user sees the file.
    QString folder;
    quint16 port = 0;
    NetworkOptions network;

    /// Whether everything that the service needs is there.
    bool isComplete() const { return m_complete; }

    /// An address that is not secure counts as missing, with a log line, unless it is on this
    /// machine. An unknown key gives a setup that is not complete.
    static ServiceSetup read(const ServicesConfig &config, const QString &serviceKey);

private:
    bool m_complete = false;
};

/// @p base with @p path appended and @p query, which is already encoded.
QUrl serviceUrl(const QUrl &base, const QString &path, const QString &query = QString());
/// Percent-encodes everything but letters, digits and "-._~".
QString queryValue(const QString &value);

} // namespace velmora
