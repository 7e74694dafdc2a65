// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/upload/wire/TokenAnswer.h"

#include "sharing/upload/wire/PlainMessage.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QUrl>
#include <QUrlQuery>

namespace velmora
{

namespace
{

constexpr int kLongestToken = 8192;

TokenAnswer refused(const QString &what)
{
    TokenAnswer answer;
    answer.problem = QStringLiteral("QOAuthOobReplyHandler::networkReplyFinished: ") + what;
    return answer;
}

TokenAnswer refused(const QString &what, const QByteArray &detail)
{
    return refused(what + plainMessage(QString::fromUtf8(detail)));
}

TokenAnswer notEmpty(const TokenAnswer &answer, const QByteArray &body)
{
    return answer.problem.isEmpty() && answer.values.isEmpty()
               ? refused(QStringLiteral("Received empty JSON object: "), body)
               : answer;
}

QString formDecoded(QString text)
{
    text.replace(QLatin1Char('+'), QLatin1Char(' '));
    return QUrl::fromPercentEncoding(text.toUtf8());
}

TokenAnswer fromForm(const QByteArray &body)
{
    TokenAnswer answer;
    const QUrlQuery form(QString::fromUtf8(body));
    const auto items = form.queryItems(QUrl::FullyEncoded);
    for (const auto &item : items)
        answer.values.insert(formDecoded(item.first), formDecoded(item.second));
    return answer;
}

// Every character of a token must be one that a header line can carry as it is.
bool isSendable(const QString &token)
{
    for (const QChar c : token) {
        if (c.unicode() <= 0x20 || c.unicode() >= 0x7f)
            return false;
    }
    return token.size() <= kLongestToken;
}

} // namespace

TokenAnswer TokenAnswer::parse(const QByteArray &contentType, const QByteArray &body)
{
    const QByteArray type = contentType.mid(0, contentType.indexOf(';')).trimmed().toLower();
    if (type.isEmpty())
        return refused(QStringLiteral("Empty Content-type header"));
    if (body.isEmpty())
        return refused(QStringLiteral("No received data"));
    if (type == "application/json" || type == "text/javascript")
        return notEmpty(fromJson(body), body);
    if (type == "text/html" || type == "application/x-www-form-urlencoded")
        return fromForm(body);
    return refused(QStringLiteral("Unknown Content-type: "), type);
}

TokenAnswer TokenAnswer::fromJson(const QByteArray &body)
{
    const QJsonDocument document = QJsonDocument::fromJson(body);
    if (!document.isObject())
        return refused(QStringLiteral("Received data is not a JSON object: "), body);
    TokenAnswer answer;
    answer.values = document.object().toVariantMap();
    return answer;
}

QString TokenAnswer::token(const QString &key) const
{
    const QVariant value = values.value(key);
    const QString text = value.type() == QVariant::String ? value.toString() : QString();
    return isSendable(text) ? text : QString();
}

} // namespace velmora
