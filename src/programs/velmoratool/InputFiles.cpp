// SPDX-License-Identifier: GPL-3.0-or-later
#include "programs/velmoratool/InputFiles.h"

#include "platform/ShortcutResolver.h"
#include "project/documents/MediaSuffixes.h"
#include "project/images/ExifReader.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QHash>

#include <algorithm>

namespace velmora
{

namespace
{

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(velmora::InputFiles)
};

/// What tells photos and music apart.
struct Kind {
    bool (*accepts)(const QString &path);
    QString missing; ///< Sentences with the path as %1.
    QString wrong;
    QString noneInFolder;
};

QStringList inFolder(const QString &folder, const Kind &kind, QStringList *errors)
{
    const QFileInfo info(folder);
    if (!info.isReadable() || !info.isExecutable()) {
        errors->append(Texts::tr("The folder \"%1\" cannot be read.").arg(folder));
        return {};
    }
    const QDir dir(info.absoluteFilePath());
    QStringList files;
    for (const QString &name : dir.entryList(QDir::Files, QDir::Unsorted)) {
        if (kind.accepts(resolveShortcut(dir.filePath(name))))
            files.append(dir.filePath(name));
    }
    if (files.isEmpty())
        errors->append(kind.noneInFolder.arg(folder));
    sortNaturally(&files);
    return files;
}

QStringList collect(const QStringList &arguments, const Kind &kind, QStringList *errors)
{
    QStringList files;
    for (const QString &argument : arguments) {
        const QFileInfo info(argument);
        if (info.isDir())
            files += inFolder(argument, kind, errors);
        else if (!info.exists())
            errors->append(kind.missing.arg(argument));
        else if (!info.isFile() || !kind.accepts(resolveShortcut(argument)))
            errors->append(kind.wrong.arg(argument));
        else
            files.append(info.absoluteFilePath());
    }
    return files;
}

void sortByDate(QStringList *files)
{
    QHash<QString, QDateTime> dates;
    for (const QString &file : qAsConst(*files)) {
        const QDateTime taken = ExifReader::read(file).taken;
        dates.insert(file, taken.isValid() ? taken : QFileInfo(file).lastModified());
    }
    sortNaturally(files); // for those of one moment
    std::stable_sort(files->begin(), files->end(), [&dates](const QString &a, const QString &b) {
        return dates.value(a) < dates.value(b);
    });
}

} // namespace

QStringList InputFiles::photos(const QStringList &arguments, MakeOptions::Order order,
                               QStringList *errors)
{
    const Kind kind{isPhotoPath, Texts::tr("The photo \"%1\" does not exist."),
                    Texts::tr("\"%1\" is not a photo of a known format."),
                    Texts::tr("There are no photos in the folder \"%1\".")};
    QStringList files = collect(arguments, kind, errors);
    if (order == MakeOptions::Order::Name)
        sortNaturally(&files);
    else if (order == MakeOptions::Order::Date)
        sortByDate(&files);
    return files;
}

QStringList InputFiles::music(const QStringList &arguments, QStringList *errors)
{
    const Kind kind{isAudioPath, Texts::tr("The sound file \"%1\" does not exist."),
                    Texts::tr("\"%1\" is not a sound file of a known format."),
                    Texts::tr("There are no sound files in the folder \"%1\".")};
    return collect(arguments, kind, errors);
}

} // namespace velmora
