// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "generator/worker/Composer.h"
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
    QString outputPath() const;
    bool canBeGenerated() const;
    void start(const QString &output);
    void onProgress(int percent);
    void onFinished(const QString &fileName);
    void onKept(const QString &fileName, const QString &error);
    void onFailed();
    void showSetup();
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
    bool m_generating = false;
};

} // namespace velmora
