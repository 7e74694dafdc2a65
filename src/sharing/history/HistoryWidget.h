// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QElapsedTimer>
#include <QPointer>
#include <QTimer>
#include <QVector>
#include <QWidget>

#include <memory>

class QItemSelection;
class QModelIndex;

namespace Ui
{
class HistoryWidget;
}

namespace velmora
{

struct AppSettings;
class HistoryModel;
class HistoryRemoval;
class HistoryStore;
class ProjectFile;
class UploadController;
class VideoDialog;

/// The list of all slideshows produced so far, and the pages on which an upload waits for its
/// sign-in and shows its progress. Removals are written to the history file at once and can be
/// undone until the next one. GUI thread.
class HistoryWidget : public QWidget
{
    Q_OBJECT
public:
    /// Lists the projects of @p history, which like @p settings must outlive the widget. Whoever
    /// adds to the history calls reload() afterwards.
    HistoryWidget(HistoryStore &history, const AppSettings &settings, QWidget *parent = nullptr);
    ~HistoryWidget() override;

    /// What runs the uploads; not owned, may be null. It must outlive the widget.
    void setUploads(UploadController *uploads);

    /// The selected entry; null without one. Valid until the history changes.
    const ProjectFile *selectedProject() const;
    QString selectedFile() const;
    /// Selects and shows an entry of the history; false when it is not listed.
    bool select(const ProjectFile *entry);
    /// The same for the newest entry that produced @p fileName.
    bool select(const QString &fileName);

    /// Whether an upload runs or waits for its sign-in; the list cannot be reached meanwhile.
    bool isUploading() const;
    /// Starts the upload of one file to "youtube", "googledrive" or "dropbox".
    void startUpload(const QString &fileName, const QString &title, const QString &uploadService);

public slots:
    /// Reads the list from the history again and keeps the selection where it can.
    void reload();
    /// Asks, then removes the entry: the selected one if it made that video, else the newest.
    void onDeleteProject(const QString &fileName);
    /// Brings back what was removed last.
    void undoRemoval();
    void onBurnProject(const QString &fileName, const QString &diskTitle);
    void onSignInStarted();
    void onBrowserOpened();
    void onSignInEnded();
    void onUploadStarted();
    void uploadProgress(int percent);
    void onUploadFinished(const QString &fileId, const QString &fileUrl);
    void onUploadFailed(const QString &error);
    void onUploadCanceled();
    /// Starts the upload of the selected entry.
    void onStartUpload(const QString &uploadService);
    void onSelectionChanged(const QItemSelection &selected, const QItemSelection &unselected);
    void onRowDoubleClicked(const QModelIndex &index);
    void onButtonUploadClicked();
    // A service was chosen for the selected entry.
    void on_btnUpload_Youtube();
    void on_btnUpload_Dropbox();
    void on_btnUpload_GoogleDrive();
    void onBtnDateClicked();
    void onBtnFileNameClicked();
    void on_btnClearHistory_clicked();
    void on_btnResumeProject_clicked();
    void on_btnBurn_clicked();
    void on_btnCancel_clicked();

signals:
    /// The selected entry shall be opened in the editor; it is selectedProject() meanwhile.
    void openProject(const QString &fileName);
    void historyChanged(); ///< Entries were removed, or brought back.
    /// The user chose a service for the selected entry. Answer with onStartUpload().
    void uploadClicked(const QString &uploadService);
    /// A video shall be burnt; @p diskTitle is the text of its title slide and may be empty.
    void burnDvd(const QString &diskTitle, const QString &fileName);
    void beginUpload();
    void uploadProgressStarted();
    void uploadProgressFinished(); ///< Once per beginUpload(), also if nothing was sent.
    void uploadFinished(const QString &videoId, const QString &previewUrl);
    void uploadFailed(const QString &error);
    void progressUpload(int percent);

protected:
    void focusInEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void setUpList();
    void setUpPages();
    void setUpUndoBar();
    void showSortArrow();
    void updateButtons();
    void playVideo(const QString &fileName);
    void playElsewhere(const QString &fileName);
    void remove(const QVector<const ProjectFile *> &projects, bool trashVideos);
    void updateUndoBar();
    void onRemovalSaved();
    void onRemovalFailed(const QString &error);
    void onVideosTrashed(const QStringList &kept);
    void onVideosRestored(const QStringList &lost);
    void tellAboutVideos(const QString &text, const QStringList &videos);
    void updateUploadTexts();
    void showUpload();
    void endUpload();
    void showElapsed();

    HistoryStore &m_history;
    std::unique_ptr<Ui::HistoryWidget> m_ui;
    HistoryModel *m_model;
    HistoryRemoval *m_removal;
    QPointer<VideoDialog> m_player;
    QPointer<UploadController> m_uploads;
    QString m_service;      ///< Of the upload that runs; empty without one.
    QString m_uploadedFile; ///< By the upload that runs, or by the last one.
    bool m_started = false; ///< uploadProgressStarted() was emitted for it.
    QTimer m_timer;
    QElapsedTimer m_elapsed;
};

} // namespace velmora
