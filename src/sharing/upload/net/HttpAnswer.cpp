// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/upload/net/HttpAnswer.h"

#include "sharing/upload/net/ReplyGuard.h"

#include <QNetworkReply>

namespace velmora
{

namespace
{

constexpr int kLongestLogged = 4096; // bytes

HttpAnswer::Kind kindOf(const QNetworkReply &reply, int status)
{
    using Kind = HttpAnswer::Kind;
    switch (ReplyGuard::verdict(&reply)) {
    case ReplyGuard::Verdict::Stalled:
        return Kind::Stalled;
    case ReplyGuard::Verdict::TooLarge:
        return Kind::TooLarge;
    case ReplyGuard::Verdict::Good:
        break;
    }
    const QNetworkReply::NetworkError error = reply.error();
    if (error == QNetworkReply::SslHandshakeFailedError)
        return Kind::Insecure;
    // Errors from here on stand for a status that came with an answer.
    const bool answered =
        error == QNetworkReply::NoError || error >= QNetworkReply::ContentAccessDenied;
    if (!answered || status == 0)
        return Kind::Unreachable;
    return status >= 300 && status < 400 ? Kind::Redirected : Kind::Answered;
}

} // namespace

HttpAnswer HttpAnswer::of(QNetworkReply &reply)
{
    HttpAnswer answer;
    answer.status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    answer.kind = kindOf(reply, answer.status);
    answer.error = reply.error();
    answer.errorString = reply.errorString();
    answer.contentType = reply.rawHeader("Content-Type");
    answer.retryAfter = reply.rawHeader("Retry-After").trimmed().toInt();
    if (answer.kind == Kind::Answered)
        answer.body = reply.readAll();
    return answer;
}

bool HttpAnswer::isAnswer() const
{
    return kind == Kind::Answered || kind == Kind::Redirected || kind == Kind::TooLarge;
}

bool HttpAnswer::isBroken() const
{
    // Qt knows no name for the error of a connection that is reset while it is read.
    return kind == Kind::Unreachable && (error == QNetworkReply::RemoteHostClosedError ||
                                         error == QNetworkReply::UnknownNetworkError);
}

bool HttpAnswer::isTransient() const
{
    return kind == Kind::Unreachable || kind == Kind::Stalled ||
           (kind == Kind::Answered && (status == 429 || status >= 500));
}

QString HttpAnswer::bodyText() const
{
    const QString text = QString::fromUtf8(body.left(kLongestLogged));
    return body.size() > kLongestLogged ? text + QStringLiteral(" ...") : text;
}

QString HttpAnswer::problem() const
{
    switch (kind) {
    case Kind::Answered:
        return {};
    case Kind::Unreachable:
        return status == 0 ? tr("The service cannot be reached.")
                           : tr("The connection to the service was lost.");
    case Kind::Insecure:
        return tr("The connection to the service is not secure.");
    case Kind::Stalled:
        return tr("The service does not answer.");
    case Kind::Redirected:
    case Kind::TooLarge:
        break;
    }
    return tr("The answer of the service cannot be understood.");
}

} // namespace velmora
