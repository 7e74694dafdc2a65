// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ShortcutResolver.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QUrl>

namespace velmora
{

namespace
{

constexpr int kMaximumLinks = 16;
constexpr qint64 kMaximumFile = 64 * 1024; // bytes

// The "URL" of a desktop entry of the type "Link"; a null string for every other file.
QString linkUrl(const QString &path)
{
    QFile file(path);
    if (!path.endsWith(QLatin1String(".desktop")) || !file.open(QIODevice::ReadOnly))
        return {};
    bool inEntry = false;
    bool isLink = false;
    QString url;
    const QStringList lines = QString::fromUtf8(file.read(kMaximumFile)).split(QLatin1Char('\n'));
    for (const QString &raw : lines) {
        const QString line = raw.trimmed();
        const int separator = line.indexOf(QLatin1Char('='));
        if (line.startsWith(QLatin1Char('[')))
            inEntry = line == QLatin1String("[Desktop Entry]");
        if (!inEntry || separator <= 0)
            continue;
        const QString key = line.left(separator).trimmed();
        const QString value = line.mid(separator + 1).trimmed();
        if (key == QLatin1String("Type"))
            isLink = value == QLatin1String("Link");
        else if (key == QLatin1String("URL"))
            url = value;
    }
    return isLink ? (url.isNull() ? QStringLiteral("") : url) : QString();
}

QString localTarget(const QString &url, const QString &link)
{
    const QUrl parsed(url, QUrl::StrictMode);
    const QUrl relaxed = parsed.isValid() ? parsed : QUrl(url);
    if (relaxed.isLocalFile())
        return relaxed.toLocalFile();
    const bool plainPath = relaxed.scheme().isEmpty() && !url.isEmpty();
    return plainPath ? QFileInfo(link).absoluteDir().absoluteFilePath(url) : QString();
}

} // namespace

QString resolveShortcut(const QString &path)
{
    QString current = path;
    for (int i = 0; i < kMaximumLinks; ++i) {
        if (QFileInfo(current).isSymLink()) {
            current = QFileInfo(current).canonicalFilePath();
            // A circle leaves the path as it was; the system then finds no file there.
            if (!QFileInfo::exists(current))
                return {};
        }
        const QString url = linkUrl(current);
        if (url.isNull())
            return current == path || QFileInfo::exists(current) ? current : QString();
        current = localTarget(url, current);
        if (current.isEmpty())
            return {};
    }
    return {};
}

} // namespace velmora
