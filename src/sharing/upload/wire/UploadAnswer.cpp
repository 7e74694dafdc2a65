// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/upload/wire/UploadAnswer.h"

#include "sharing/upload/wire/PlainMessage.h"

#include <QJsonDocument>
#include <QUrl>

namespace velmora
{

namespace
{

constexpr int kLongestId = 512;

// An error is an object with a "message", or in the style of sign-ins a word with a description.
QString errorMessage(const QJsonObject &answer)
{
    const QJsonValue error = answer.value(QLatin1String("error"));
    if (error.isObject())
        return plainMessage(error.toObject().value(QLatin1String("message")).toString());
    const QString description = answer.value(QLatin1String("error_description")).toString();
    return plainMessage(description.isEmpty() ? error.toString() : description);
}

} // namespace

UploadAnswer UploadAnswer::parse(const QByteArray &body)
{
    UploadAnswer answer;
    answer.resource = QJsonDocument::fromJson(body).object();
    if (answer.resource.contains(QLatin1String("error")))
        answer.message = errorMessage(answer.resource);
    else
        answer.isError = answer.id().isEmpty() || answer.id().size() > kLongestId;
    return answer;
}

QString UploadAnswer::alternateLink() const
{
    const QUrl link(resource.value(QLatin1String("alternateLink")).toString(), QUrl::StrictMode);
    const bool web =
        link.scheme() == QLatin1String("https") || link.scheme() == QLatin1String("http");
    return web && !link.host().isEmpty() ? link.toString(QUrl::FullyEncoded) : QString();
}

QJsonObject UploadAnswer::withTitle(const QString &title) const
{
    QJsonObject changed = resource;
    QJsonObject snippet = changed.value(QLatin1String("snippet")).toObject();
    snippet.insert(QStringLiteral("title"), title);
    changed.insert(QStringLiteral("snippet"), snippet);
    return changed;
}

} // namespace velmora
