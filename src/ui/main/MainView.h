// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "chrome/CorWindow.h"
#include "ui/main/LastVideo.h"
#include "ui/main/TaskbarShare.h"

#include <QPointer>
#include <QStringList>

#include <memory>

class QSettings;
class QStackedWidget;

namespace velmora
{

struct AppSettings;
class Autosave;
class DesktopNotification;
class DocumentActions;
class FileManager;
class HelpPages;
class HistoryStore;
class HistoryWidget;
class MainMenu;
class MainWindowWidget;
class ProjectDocument;
class ProjectFile;
class QuietMoment;
class ServicesConfig;
class SettingsWidget;
class StartPage;
class TaskbarProgress;
class ToolRow;
class UpdateNotice;
class UploadController;

/// The program's one window: decides which page is shown, and connects the pages with each other,
/// with the project document and with the desktop. GUI thread.
class MainView : public CorWindow
{
    Q_OBJECT
public:
    enum Page { Start, Editor, History };

    /// What the window works with; all of it must outlive the window.
    struct Parts {
        AppSettings &settings;
        QSettings &store;
        const ServicesConfig &services;
        HistoryStore &history;
        UploadController &uploads;
        TaskbarProgress &taskbar;
        DesktopNotification &notification;
        FileManager &fileManager;
    };

    explicit MainView(const Parts &parts);
    ~MainView() override;

    MainWindowWidget &editorPage() { return *m_editor; }
    ProjectDocument &document() { return *m_document; }
    Page page() const;
    /// Opens a project document or adds photos and folders to the open slideshow; once no dialog is
    /// open and no video is being made.
    void openFiles(const QStringList &files);
    /// Asks whether to restore what was not saved before a crash, if there is something.
    void offerRestore();
    /// For the end of the program: finishes with the files that the next start uses as well. The
    /// end of the window may wait for photos on a disk that does not answer.
    void letGo();

public slots:
    void onMessageReceived(const QString &message);
    void onSettingsHide();
    void onSettingsHideFinished();
    void onSettingsUpdate();
    void onDropBegin();
    void onFileDropped(const QString &fileName);
    void onDropEnd();
    void onFinished(const QString &fileName);
    void onProgressStarted();
    void onProgressFinished();
    void onUploadClicked(const QString &uploadService);
    void onUploadFailed(const QString &error);
    void onUploadFinished(const QString &videoId, const QString &previewUrl);
    void onUploadProgressStarted();
    void onBurnDvd(const QString &diskTitle, const QString &fileName);
    void onPageChanged(int page);
    void onProjectOpen();
    void onBtnAddPhotoClicked();
    void onBtnAddFolderClicked();
    void onBtnSettingsClicked();
    void onBtnHistoryClicked();
    void onBtnHelpClicked();
    void onBtnSiteClicked();
    void onLblLastProjectClicked();
    void runUpdateChecker();
    void onNewVersion(const QString &version);
    void onTextEditingBegan(int totalSlide);
    void onTextEditingFinished();
    void onToggleFullScreen();

signals:
    void settingsSaved(); ///< The user changed the settings; language and services may differ.

protected:
    bool event(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void setUpPages();
    void connectTools();
    void connectStartPage();
    void connectEditor();
    void connectHistory();
    void leaveHistory();
    void showEditor();
    void openNow(const QStringList &files);
    void addFiles(const QStringList &files);
    void updateLastVideo();
    void offerNextSteps(const QString &video, const ProjectFile *entry);
    void tellInBackground(const QString &title, const QString &text);

    Parts m_parts;
    MainMenu *m_menu;
    LastVideo m_lastVideo;
    TaskbarShare m_taskbar;
    ToolRow *m_tools;
    QStackedWidget *m_stack;
    StartPage *m_start;
    MainWindowWidget *m_editor;
    HistoryWidget *m_history;
    SettingsWidget *m_settingsPanel;
    HelpPages *m_help;
    UpdateNotice *m_updates;
    // These end before the pages do, which are children of the window.
    std::unique_ptr<ProjectDocument> m_document;
    std::unique_ptr<Autosave> m_autosave;
    QuietMoment *m_quiet;
    DocumentActions *m_actions;
    QStringList m_dropped; ///< The files of the drop in work.
    QPointer<QWidget> m_focusBeforeSettings;
};

} // namespace velmora
