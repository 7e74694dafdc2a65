// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/main/PhotoDialogs.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>

namespace velmora
{

namespace
{

const QString &folderKey()
{
    static const QString key = QStringLiteral("last_open_folder");
    return key;
}

QString startFolder(const QSettings &store)
{
    const QString pictures = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
    const QString folder = store.value(folderKey(), pictures).toString();
    // A dialog would propose the name of a folder that is not there as that of a file.
    return QFileInfo(folder).isDir() ? folder : QDir::homePath();
}

} // namespace

QStringList PhotoDialogs::askForPhotos(QWidget *parent, QSettings *store)
{
    // TIFF is left out of the filter on purpose; dropped files may be of that kind.
    const QStringList files = QFileDialog::getOpenFileNames(
        parent, QCoreApplication::translate("MainView", "Open File"), startFolder(*store),
        QCoreApplication::translate("MainView", "Images (%1)")
            .arg(QStringLiteral("*.png *.jpg *.jpeg *.bmp *.gif")));
    if (!files.isEmpty())
        store->setValue(folderKey(), QFileInfo(files.first()).absolutePath());
    return files;
}

QString PhotoDialogs::askForFolder(QWidget *parent, QSettings *store)
{
    const QString folder = QFileDialog::getExistingDirectory(
        parent, QCoreApplication::translate("MainView", "Add Folder"), startFolder(*store));
    if (!folder.isEmpty())
        store->setValue(folderKey(), folder);
    return folder;
}

} // namespace velmora
