// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>

#include <memory>

class QJsonObject;

namespace velmora
{

struct AppSettings;
class MainWindowWidget;
class ProjectFile;

/// The project that is open and the file that it was saved to; owns the project and lends it to the
/// editor page. At most one project is open. GUI thread.
class ProjectDocument : public QObject
{
    Q_OBJECT
public:
    /// Both must outlive the document.
    ProjectDocument(MainWindowWidget &page, const AppSettings &settings, QObject *parent = nullptr);
    ~ProjectDocument() override;

    ProjectFile *project() const { return m_project.get(); } ///< Null: none is open.
    const QString &path() const { return m_path; }           ///< Empty: never saved.
    /// Whether closing it would lose something, be it only a caption that is being edited.
    bool isModified() const;
    bool hasUnsavedText() const; ///< Whether a caption is being edited and differs.
    /// The open project, with such a caption.
    void toJson(QJsonObject &document) const;
    /// What the window calls it: its file's name, otherwise the project's. Empty without one.
    QString displayName() const;

    /// Opens an empty project with the defaults of the settings.
    void begin();
    /// Opens @p project, that was read from @p path (empty: from elsewhere). The project before is
    /// deleted once the editor page has let go of it. @p modified: its file has something else.
    void replace(std::unique_ptr<ProjectFile> project, const QString &path, bool modified = false);
    void close();
    /// Changes the title of the project as one step of the undo stack.
    void setName(const QString &name);
    /// Writes the project, with a caption that is being edited, to @p path, which is its file from
    /// then on; false with a reason for the user on failure.
    bool save(const QString &path, QString *error);
    /// A project that was never saved counts as unmodified once the history has kept it.
    void keptByHistory();

signals:
    void replaced();     ///< Another project is open, or none.
    void stateChanged(); ///< Name, file or modification may have changed.

private:
    void setClean();

    MainWindowWidget &m_page;
    const AppSettings &m_settings;
    std::unique_ptr<ProjectFile> m_project;
    QString m_path;
    bool m_fileDiffers = false; ///< It was modified already when it was opened.
};

} // namespace velmora
