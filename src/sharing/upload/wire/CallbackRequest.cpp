// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/upload/wire/CallbackRequest.h"

#include <QList>
#include <QUrl>

#include <algorithm>

namespace velmora
{

namespace
{

constexpr int kMostItems = 64;

bool isMethod(const QByteArray &word)
{
    return !word.isEmpty() && word.size() <= 16 &&
           std::all_of(word.begin(), word.end(), [](char c) { return c >= 'A' && c <= 'Z'; });
}

// A target holds visible ASCII only; everything else must be percent-encoded.
bool isTarget(const QByteArray &word)
{
    return word.startsWith('/') &&
           std::all_of(word.begin(), word.end(), [](char c) { return c > 0x20 && c < 0x7f; });
}

QString decoded(QByteArray text)
{
    return QString::fromUtf8(QByteArray::fromPercentEncoding(text.replace('+', ' ')));
}

QVariantMap readQuery(const QByteArray &query)
{
    QVariantMap values;
    const QList<QByteArray> items = query.split('&');
    for (int i = 0; i < std::min(items.size(), kMostItems); ++i) {
        const QByteArray &item = items.at(i);
        const int equals = item.indexOf('=');
        const QString key = decoded(item.mid(0, equals));
        if (!key.isEmpty() && !values.contains(key))
            values.insert(key, equals < 0 ? QString() : decoded(item.mid(equals + 1)));
    }
    return values;
}

} // namespace

std::optional<CallbackRequest> CallbackRequest::parse(const QByteArray &line)
{
    const QList<QByteArray> words = line.split(' ');
    if (words.size() != 3 || !isMethod(words.at(0)) || !isTarget(words.at(1)) ||
        (words.at(2) != "HTTP/1.1" && words.at(2) != "HTTP/1.0"))
        return std::nullopt;
    QByteArray target = words.at(1);
    target.truncate(target.indexOf('#') < 0 ? target.size() : target.indexOf('#'));
    const int question = target.indexOf('?');
    CallbackRequest request;
    request.method = words.at(0);
    request.path = QString::fromUtf8(QByteArray::fromPercentEncoding(target.mid(0, question)));
    if (question >= 0)
        request.values = readQuery(target.mid(question + 1));
    return request;
}

} // namespace velmora
