// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/main/ProjectResume.h"

#include <QObject>
#include <QString>

class QSettings;
class QWidget;

namespace velmora
{

struct AppSettings;
class Autosave;
class MainMenu;
class ProjectDocument;
class ProjectFile;
class QuietMoment;

/// New, open, save, and the questions before something is lost. GUI thread; the slots return when
/// the dialogs are answered.
class DocumentActions : public QObject
{
    Q_OBJECT
public:
    /// Takes over the document's actions of @p menu and the title of @p window, above which it
    /// shows its dialogs. All must outlive the object.
    DocumentActions(ProjectDocument &document, const AppSettings &settings, QSettings &store,
                    const MainMenu &menu, QuietMoment &quiet, QWidget *window);

    /// Asks what to do with unsaved changes, and does it. False: the project has to stay open.
    bool mayLeave();
    /// Whether the program may end: asks about a video that is being made or uploaded, and about
    /// unsaved changes.
    bool mayClose(bool generating, bool uploading);
    /// Opens a copy of an entry of the history; opened() may follow later. Nothing changes if the
    /// entry cannot be read.
    void resume(const ProjectFile &entry) { m_resume.start(entry); }
    /// Leaves it at that, since the user went on with something else.
    void forgetResume() { m_resume.cancel(); }
    /// Asks whether to restore what was not saved before a crash, if there is something.
    void offerRestore(Autosave &autosave);
    /// Opens a project document in place of the open one; tells the user why it cannot be read.
    /// False if the user wants to stay with the open project.
    bool openFile(const QString &path);

    /// Whether @p path looks like a project document rather than a photo.
    static bool isDocument(const QString &path);

public slots:
    void onNew();
    void onOpen();
    bool onSave();   ///< False if nothing was saved.
    bool onSaveAs(); ///< As onSave().
    void onTitle();
    /// Shows the state of the document, in the present language, in the window's title.
    void updateTitle();

signals:
    void opened(); ///< Another project document is open.
    void closed(); ///< No project is open any more.

private:
    bool mayStopWork(bool generating, bool uploading);
    std::unique_ptr<ProjectFile> read(const QString &path); ///< Null: the user was told why.
    bool saveTo(const QString &path);
    void onResumed();
    QString proposedPath() const;

    ProjectDocument &m_document;
    const AppSettings &m_settings;
    QSettings &m_store;
    QWidget *m_window;
    ProjectResume m_resume;
};

} // namespace velmora
