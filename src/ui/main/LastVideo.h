// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QWidget;

namespace velmora
{

class FileManager;
class HistoryStore;
class ProjectFile;

/// The video that was produced last, as far as the history knows. GUI thread.
class LastVideo
{
public:
    /// Both must outlive the object.
    LastVideo(const HistoryStore &history, FileManager &fileManager)
        : m_history(history), m_fileManager(fileManager)
    {
    }

    const ProjectFile *project() const; ///< Null: there is none.
    QString path() const;               ///< Empty: there is none.
    QString name() const;               ///< The project's; empty: there is none.
    /// Shows the video in its folder, or says above @p window that the folder is gone.
    void showFolder(QWidget *window) const;

private:
    const HistoryStore &m_history;
    FileManager &m_fileManager;
};

} // namespace velmora
