// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/upload/wire/DropboxMessages.h"
#include "sharing/upload/wire/UploadAnswer.h"

#include <QJsonDocument>
#include <QUrl>

#include <cstdint>
#include <cstdlib>

using namespace velmora;

namespace
{

void checkMessage(const QString &message)
{
    if (message.size() > 300 || message != message.simplified())
        std::abort();
}

void checkVideo(const QByteArray &body)
{
    const UploadAnswer answer = UploadAnswer::parse(body);
    checkMessage(answer.message);
    if (!answer.isError && answer.id().isEmpty())
        std::abort();
    const QString link = answer.alternateLink();
    if (!link.isEmpty() && !QUrl(link).scheme().startsWith(QLatin1String("http")))
        std::abort();
    // Only the title differs.
    const QJsonObject named = answer.withTitle(QStringLiteral("t"));
    if (named.value(QLatin1String("id")) != answer.resource.value(QLatin1String("id")))
        std::abort();
}

void checkPieces(const QByteArray &body)
{
    const DropboxMessages::Answer answer = DropboxMessages::parse(body);
    checkMessage(answer.message);
    if (answer.correctOffset < -1)
        std::abort();
    // Whatever the session is called, the argument it is put into is one line of JSON.
    const QByteArray argument = DropboxMessages::append(answer.sessionId, 1);
    const QJsonObject cursor =
        QJsonDocument::fromJson(argument).object().value(QLatin1String("cursor")).toObject();
    if (argument.contains('\n') || argument.contains('\r') ||
        cursor.value(QLatin1String("session_id")).toString() != answer.sessionId)
        std::abort();
}

} // namespace

/// Any bytes as the answer to an upload.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray body(reinterpret_cast<const char *>(data), static_cast<int>(size));
    checkVideo(body);
    checkPieces(body);
    return 0;
}
