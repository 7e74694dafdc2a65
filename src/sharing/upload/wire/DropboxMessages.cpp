// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/upload/wire/DropboxMessages.h"

#include "sharing/upload/wire/PlainMessage.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>

namespace velmora
{

namespace
{

constexpr int kLongestId = 1024;
constexpr double kLargestOffset = 1LL << 53; // Larger numbers are not exact in JSON.

// A header carries ASCII only, so everything else is escaped.
QString escaped(const QString &text)
{
    QString result;
    for (const QChar c : text) {
        if (c == QLatin1Char('"') || c == QLatin1Char('\\'))
            result += QLatin1Char('\\') + QString(c);
        else if (c.unicode() < 0x20 || c.unicode() >= 0x7f)
            result += QStringLiteral("\\u%1").arg(c.unicode(), 4, 16, QLatin1Char('0'));
        else
            result += c;
    }
    return result;
}

QString commitText(const QString &path)
{
    return QStringLiteral(R"({ "path": "%1", "mode": "%2", "autorename": %3, "mute": true })")
        .arg(escaped(path), QStringLiteral("overwrite"), QStringLiteral("false"));
}

QString cursorText(const QString &sessionId, qint64 offset)
{
    return QStringLiteral(R"({ "session_id": "%1", "offset": %2 })")
        .arg(escaped(sessionId), QString::number(offset));
}

bool isSendable(const QString &id)
{
    for (const QChar c : id) {
        if (c.unicode() <= 0x20 || c.unicode() >= 0x7f)
            return false;
    }
    return id.size() <= kLongestId;
}

// The number stands in the error itself or one level below it.
qint64 correctOffset(const QJsonObject &error)
{
    const QString key = QStringLiteral("correct_offset");
    QJsonValue value = error.value(key);
    if (!value.isDouble())
        value = error.value(QStringLiteral("lookup_failed")).toObject().value(key);
    const double offset = value.toDouble(-1);
    const bool whole = offset >= 0 && offset <= kLargestOffset && std::floor(offset) == offset;
    return whole ? static_cast<qint64>(offset) : -1;
}

QString errorMessage(const QJsonObject &answer)
{
    const QJsonValue user = answer.value(QLatin1String("user_message"));
    const QString text =
        user.isObject() ? user.toObject().value(QLatin1String("text")).toString() : user.toString();
    const QString summary = answer.value(QLatin1String("error_summary")).toString();
    return plainMessage(text.isEmpty() ? summary : text);
}

} // namespace

QByteArray DropboxMessages::commit(const QString &path)
{
    return commitText(path).toLatin1();
}

QByteArray DropboxMessages::start()
{
    return QByteArrayLiteral(R"({ "close": false })");
}

QByteArray DropboxMessages::append(const QString &sessionId, qint64 offset)
{
    return QStringLiteral(R"({ "cursor": %1, "close": false })")
        .arg(cursorText(sessionId, offset))
        .toLatin1();
}

QByteArray DropboxMessages::finish(const QString &sessionId, qint64 offset, const QString &path)
{
    return QStringLiteral(R"({ "cursor": %1, "commit": %2 })")
        .arg(cursorText(sessionId, offset), commitText(path))
        .toLatin1();
}

DropboxMessages::Answer DropboxMessages::parse(const QByteArray &body)
{
    const QJsonObject object = QJsonDocument::fromJson(body).object();
    Answer answer;
    const QString id = object.value(QLatin1String("session_id")).toString();
    if (isSendable(id))
        answer.sessionId = id;
    answer.message = errorMessage(object);
    answer.correctOffset = correctOffset(object.value(QLatin1String("error")).toObject());
    return answer;
}

} // namespace velmora
