// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/main/LastVideo.h"

#include "chrome/MessageDialog.h"
#include "platform/FileManager.h"
#include "project/documents/HistoryStore.h"

#include <QCoreApplication>
#include <QDir>

namespace velmora
{

const ProjectFile *LastVideo::project() const
{
    return m_history.projects().empty() ? nullptr : m_history.projects().back().get();
}

QString LastVideo::path() const
{
    return project() ? project()->fileName() : QString();
}

QString LastVideo::name() const
{
    return project() ? project()->shownName() : QString();
}

void LastVideo::showFolder(QWidget *window) const
{
    if (path().isEmpty() || m_fileManager.showInFolder(path()))
        return;
    const QString folder = QFileInfo(path()).absolutePath();
    const QString reason =
        QFileInfo(folder).isDir()
            ? QCoreApplication::translate("MainView",
                                          "There is no program to show the folder \"%1\".")
            : QCoreApplication::translate("MainView", "The folder \"%1\" does not exist any more.");
    MessageDialog::inform(window, QCoreApplication::translate("MainView", "Open Folder"),
                          reason.arg(QDir::toNativeSeparators(folder)));
}

} // namespace velmora
