// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/documents/JsonFile.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace velmora
{

namespace
{

QString tooLargeText(qint64 maximumSize)
{
    constexpr qint64 kMegabyte = 1000 * 1000;
    return QCoreApplication::translate("JsonFile", "The file is larger than %1 MB.")
        .arg(maximumSize / kMegabyte);
}

bool writeAll(QIODevice &device, const QByteArray &content)
{
    // Where a disk fills up, the first call writes a part and only the next one knows the reason.
    qint64 position = 0;
    while (position < content.size()) {
        const qint64 count =
            device.write(content.constData() + position, content.size() - position);
        if (count <= 0) {
            return false;
        }
        position += count;
    }
    return true;
}

} // namespace

bool JsonFile::readAll(const QString &path, qint64 maximumSize, QByteArray *content, QString *error)
{
    const QFileInfo info(path);
    if (info.exists() && !info.isFile()) {
        // Reading from a pipe or a device might never end.
        *error = QCoreApplication::translate("JsonFile", "This is not a regular file.");
        return false;
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *error = file.errorString();
        return false;
    }
    if (file.size() > maximumSize) {
        *error = tooLargeText(maximumSize);
        return false;
    }
    *content = file.read(maximumSize);
    if (file.error() != QFileDevice::NoError) {
        *error = file.errorString();
        return false;
    }
    return true;
}

bool JsonFile::write(const QString &path, const QByteArray &content, QString *error)
{
    QSaveFile file(path);
    const bool written =
        file.open(QIODevice::WriteOnly) && writeAll(file, content) && file.commit();
    if (!written) {
        *error = file.errorString();
    }
    return written;
}

} // namespace velmora
