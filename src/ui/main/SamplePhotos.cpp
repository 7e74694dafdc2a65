// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/main/SamplePhotos.h"

#include <QCoreApplication>
#include <QDir>

namespace velmora
{

QString samplePhotosFolder()
{
    const QDir program(QCoreApplication::applicationDirPath());
    for (const QString &place :
         {QStringLiteral("examples/photos"), QStringLiteral("../share/velmora/examples/photos"),
          QStringLiteral("../../../examples/photos")}) {
        const QDir folder(program.filePath(place));
        if (folder.exists())
            return folder.canonicalPath();
    }
    return {};
}

} // namespace velmora
