// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/FileNames.h"

#include <QFile>

#include <clocale>
#include <cstring>

namespace velmora
{

void FileNames::allowAllLetters()
{
    const char *const locale = std::setlocale(LC_CTYPE, "");
    const bool plain =
        !locale || std::strcmp(locale, "C") == 0 || std::strcmp(locale, "POSIX") == 0;
    if (plain) // Qt reads the variable again when the application object is made.
        qputenv("LC_ALL", QByteArrayLiteral("C.UTF-8"));
}

QString FileNames::identity(const QString &path)
{
    return path;
}

int FileNames::length(const QString &name)
{
    return QFile::encodeName(name).size();
}

QByteArray FileNames::inFiles(const QString &path)
{
    return QFile::encodeName(path);
}

} // namespace velmora
