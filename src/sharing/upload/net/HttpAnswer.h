// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

class QNetworkReply;

namespace velmora
{

/// How a finished request ended, and what came back. Plain value.
struct HttpAnswer {
    Q_DECLARE_TR_FUNCTIONS(HttpAnswer)
public:
    enum class Kind {
        Answered,    ///< With whatever status.
        Redirected,  ///< To another address, which is not followed.
        Unreachable, ///< No connection, or it was lost.
        Insecure,    ///< The server could not prove who it is.
        Stalled,
        TooLarge,
    };

    Kind kind = Kind::Unreachable;
    int status = 0; ///< The HTTP status.
    int error = 0;  ///< QNetworkReply::NetworkError
    QByteArray contentType;
    QByteArray body;
    QString errorString; ///< For the log: may hold the request's address.
    int retryAfter = 0;  ///< s; what the service asked for, else 0.

    static HttpAnswer of(QNetworkReply &reply);

    bool isSuccess() const { return kind == Kind::Answered && status >= 200 && status < 300; }
    /// Whether the service answered at all.
    bool isAnswer() const;
    /// Whether the connection broke for no reason that is known. It may not even have come about.
    bool isBroken() const;
    /// Whether the same request may well succeed later.
    bool isTransient() const;
    /// The body for the log, not all of it if it is long.
    QString bodyText() const;
    /// For the user: why there is no usable answer; empty if there is one.
    QString problem() const;
};

} // namespace velmora
