// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/FileNames.h"

namespace velmora
{

void FileNames::allowAllLetters()
{
    // The system's names are Unicode whatever the language.
}

QString FileNames::identity(const QString &path)
{
    return path.toUpper();
}

int FileNames::length(const QString &name)
{
    return name.size();
}

QByteArray FileNames::inFiles(const QString &path)
{
    return path.toUtf8();
}

} // namespace velmora
