// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QPointer>
#include <QString>

class QLineEdit;

namespace velmora
{

class ProjectEditor;
class ProjectFile;

/// The field with the video's file name beside the slideshow's title: each gives its text to the
/// other where that has none of its own. GUI thread.
class VideoName : public QObject
{
    Q_OBJECT
public:
    /// @p field and @p editor must outlive the object.
    VideoName(QLineEdit &field, ProjectEditor &editor, QObject *parent);

    /// Puts a fresh name into the field.
    void propose();
    /// Names a slideshow that has no title like its video.
    void giveTitle();

private:
    void takeProject();
    void followTitle();
    void showTitle();

    QLineEdit &m_field;
    ProjectEditor &m_editor;
    QPointer<ProjectFile> m_project;
    QString m_title;      ///< The slideshow's, as seen last.
    QString m_givenTitle; ///< The one that giveTitle() gave; empty: none.
};

} // namespace velmora
