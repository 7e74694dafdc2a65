// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFile>

namespace velmora
{

/// Makes the file, or puts @p content in place of what it has; false when that is not possible.
inline bool writeFile(const QString &path, const QByteArray &content = {})
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

/// What the file has; nothing if there is none.
inline QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace velmora
