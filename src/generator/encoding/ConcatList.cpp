// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/encoding/ConcatList.h"

#include "generator/GeneratorLog.h"
#include "platform/FileNames.h"

#include <QCoreApplication>
#include <QDir>
#include <QSaveFile>

namespace velmora
{

namespace
{

QString unwritableName(const QString &path)
{
    return QCoreApplication::translate("velmora::ConcatList",
                                       "The file name \"%1\" contains a line break.")
        .arg(QString(path).simplified());
}

QString unwritableList(const QSaveFile &file)
{
    return QCoreApplication::translate("velmora::ConcatList", "%1 cannot be written: %2")
        .arg(QDir::toNativeSeparators(file.fileName()), file.errorString());
}

} // namespace

QByteArray ConcatList::line(const QString &path)
{
    for (const QChar c : {QLatin1Char('\n'), QLatin1Char('\r'), QLatin1Char('\0')}) {
        if (path.contains(c))
            return {};
    }
    QString quoted = QDir::fromNativeSeparators(path);
    quoted.replace(QLatin1Char('\''), QLatin1String("'\\''"));
    return QByteArrayLiteral("file '") + FileNames::inFiles(quoted) + '\'';
}

bool ConcatList::write(const QString &listFile, const QStringList &files, QString *error)
{
    QSaveFile list(listFile);
    if (!list.open(QIODevice::WriteOnly)) {
        *error = unwritableList(list);
        qCCritical(generatorLog).noquote() << "Open merge file error:" << listFile;
        return false;
    }
    qCInfo(generatorLog).noquote() << "MERGE FILE LIST:" << listFile;
    for (const QString &file : files) {
        const QByteArray text = line(file);
        if (text.isEmpty()) {
            *error = unwritableName(file);
            qCCritical(generatorLog) << "A file name has a line break:" << file;
            return false;
        }
        qCInfo(generatorLog).noquote() << "APPEND FILE:" << QString::fromUtf8(text);
        list.write(text + '\n');
    }
    if (list.commit())
        return true;
    *error = unwritableList(list);
    qCCritical(generatorLog).noquote() << "The merge file is not written:" << listFile;
    return false;
}

} // namespace velmora
