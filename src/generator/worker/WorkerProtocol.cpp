// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/worker/WorkerProtocol.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>

namespace velmora
{

namespace
{

using Kind = WorkerMessage::Kind;

// A list of many files that cannot be used, too. Even if each character is written as six bytes,
// two such texts fit a line.
constexpr int kMaximumText = 17000;

// Beyond this a double, which is what JSON has, does not hold every integer.
constexpr double kMaximumNumber = 9007199254740992.0;

struct KindName {
    Kind kind;
    const char *name;
};

constexpr KindName kKindNames[] = {
    {Kind::Progress, "progress"}, {Kind::Stage, "stage"},         {Kind::Finished, "finished"},
    {Kind::Failed, "failed"},     {Kind::Cancelled, "cancelled"},
};

QLatin1String nameOf(Kind kind)
{
    for (const KindName &row : kKindNames) {
        if (row.kind == kind)
            return QLatin1String(row.name);
    }
    return QLatin1String("invalid");
}

Kind kindOf(const QString &name)
{
    for (const KindName &row : kKindNames) {
        if (name == QLatin1String(row.name))
            return row.kind;
    }
    return Kind::Invalid;
}

QString limited(const QString &text)
{
    return text.size() <= kMaximumText ? text : text.left(kMaximumText) + QChar(0x2026);
}

/// The integer of @p value; -1 for anything that is none or is negative.
qint64 numberOf(const QJsonValue &value)
{
    const double number = value.toDouble(-1.0);
    const bool whole = number >= 0.0 && number <= kMaximumNumber && std::floor(number) == number;
    return whole ? static_cast<qint64>(number) : -1;
}

bool readFields(const QJsonObject &object, WorkerMessage &message)
{
    switch (message.kind) {
    case Kind::Progress:
        message.frame = numberOf(object.value(QLatin1String("frame")));
        message.count = numberOf(object.value(QLatin1String("count")));
        return message.frame >= 0 && message.frame <= message.count;
    case Kind::Stage:
        message.stage = object.value(QLatin1String("stage")).toString();
        return !message.stage.isEmpty();
    case Kind::Finished:
        message.fileName = object.value(QLatin1String("file")).toString();
        return !message.fileName.isEmpty();
    case Kind::Failed:
        message.error.code = object.value(QLatin1String("code")).toString();
        message.error.text = object.value(QLatin1String("text")).toString();
        return message.error.isSet();
    case Kind::Cancelled:
        return true;
    case Kind::Invalid:
        return false;
    }
    return false;
}

} // namespace

QByteArray WorkerProtocol::encode(const WorkerMessage &message)
{
    QJsonObject object{{QStringLiteral("event"), nameOf(message.kind)}};
    switch (message.kind) {
    case Kind::Progress:
        object.insert(QStringLiteral("frame"), message.frame);
        object.insert(QStringLiteral("count"), message.count);
        break;
    case Kind::Stage:
        object.insert(QStringLiteral("stage"), limited(message.stage));
        break;
    case Kind::Finished:
        object.insert(QStringLiteral("file"), message.fileName);
        break;
    case Kind::Failed:
        object.insert(QStringLiteral("code"), limited(message.error.code));
        object.insert(QStringLiteral("text"), limited(message.error.text));
        break;
    case Kind::Cancelled:
    case Kind::Invalid:
        break;
    }
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

WorkerMessage WorkerProtocol::decode(const QByteArray &line)
{
    if (line.size() > kMaximumLine)
        return {};
    const QJsonObject object = QJsonDocument::fromJson(line).object();
    WorkerMessage message;
    message.kind = kindOf(object.value(QLatin1String("event")).toString());
    return readFields(object, message) ? message : WorkerMessage();
}

WorkerExitCode exitCodeOf(const RenderError &error)
{
    return error.code == RenderErrorCode::kRequest ? kExitBadArguments : kExitFailed;
}

} // namespace velmora
