// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/TaskThread.h"
#include "generator/worker/Composer.h"
#include "ui/editor/OutputCheck.h"
#include "ui/editor/RenderedProject.h"

#include <QFrame>
#include <QTimer>

#include <memory>

namespace Ui
{
class CreatePanel;
}

namespace velmora
{

struct AppSettings;
class HistoryStore;
class ProgressPage;
class ProjectEditor;
class VideoName;

/// Name and format of the video, and the run of its render with the progress page. GUI thread.
class CreatePanel : public QFrame
{
    Q_OBJECT
public:
    CreatePanel(ProjectEditor &editor, const AppSettings &settings, HistoryStore &history,
                QWidget *parent = nullptr);
    ~CreatePanel() override;

    Composer &composer() { return m_composer; }
    /// Tells why no video can be made for now, for the user; empty: nothing is in the way.
    void setObstacle(const QString &reason);
    /// From progressStarted() to progressFinished().
    bool isGenerating() const { return m_generating; }

signals:
    void progressStarted();
    void progressFinished(); ///< Once per progressStarted(): success, failure or cancel.
    void progress(int percent);
    void pausedChanged(bool paused); ///< Between progressStarted() and progressFinished().
    void recorded(); ///< The history has kept the project as it is now. Before finished().
    void failed(const QString &reason); ///< After progressFinished(), before the user is told.
    void finished(const QString &fileName);
    void fullPreviewClicked();

public slots:
    void on_btnCreate_clicked();
    void on_btnCancel_clicked();
    void on_btnPauseResume_clicked();
    void on_btnFullPreview_clicked();
    void onProgressTimer();
    /// Ticks while a render winds up: after its last frames, and after a cancel.
    void onFinalTimer();
    void onCancelled();
    void onChangeVideoFormat(int index);

protected:
    void changeEvent(QEvent *event) override;

private:
    void setUpPages();
    void retranslate();
    void connectComposer();
    bool canBeGenerated() const;
    /// Has @p work done off the GUI thread, as a step of the preparations. Its report is dropped
    /// when the preparations have been ended meanwhile.
    void prepare(const TaskThread::Work &work);
    void endPreparations();
    void onOutputLookedAt(const QString &name, const QString &output,
                          const OutputCheck::Finding &finding);
    void onRequestWritten(const QString &error);
    void start();
    void onProgress(int percent);
    void onFinished(const QString &fileName);
    void onKept(const QString &fileName, const QString &error);
    void onFailed();
    void showSetup();
    void dropForeignFormats();
    void refresh();
    void updateCreateButton();

    ProjectEditor &m_editor;
    const AppSettings &m_settings;
    HistoryStore &m_history;
    std::unique_ptr<Ui::CreatePanel> m_ui;
    std::unique_ptr<ProgressPage> m_page;
    VideoName *m_name = nullptr;
    Composer m_composer;
    QTimer m_progressTimer;
    QTimer m_finalTimer;
    RenderedProject m_rendered;
    TaskThread *m_disk; ///< Retired at the end, as a disk may not answer for long.
    QString m_obstacle;
    int m_preparations = 0; ///< The number of those in work or done last.
    bool m_preparing = false;
    bool m_returnsFocus = false; ///< The button had it before the preparations.
    bool m_generating = false;
};

} // namespace velmora
