// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>

class QSettings;
class QWidget;

namespace velmora
{

struct AppSettings;
class ProjectDocument;

/// New, open, save and the questions that go with them. GUI thread; the slots return when the
/// dialogs are answered.
class DocumentActions : public QObject
{
    Q_OBJECT
public:
    /// All must outlive the object; dialogs are shown above @p window.
    DocumentActions(ProjectDocument &document, const AppSettings &settings, QSettings &store,
                    QWidget *window);

    /// Asks what to do with unsaved changes, and does it. False: the project has to stay open.
    bool mayLeave();
    /// Opens a project document in place of the open one; tells the user why it cannot be read.
    /// False if the open project stays.
    bool openFile(const QString &path);

    /// Whether @p path looks like a project document rather than a photo.
    static bool isDocument(const QString &path);

public slots:
    void onNew();
    void onOpen();
    bool onSave();   ///< False if nothing was saved.
    bool onSaveAs(); ///< As onSave().
    void onTitle();

signals:
    void opened(); ///< Another project document is open.
    void closed(); ///< No project is open any more.

private:
    bool saveTo(const QString &path);
    QString proposedPath() const;

    ProjectDocument &m_document;
    const AppSettings &m_settings;
    QSettings &m_store;
    QWidget *m_window;
};

} // namespace velmora
