// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/FileNames.h"

#include <QByteArray>

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

} // namespace velmora
