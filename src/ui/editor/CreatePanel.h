// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "generator/worker/Composer.h"

#include <QTimer>
#include <QWidget>

#include <memory>

namespace Ui
{
class CreatePanel;
}

namespace velmora
{

struct AppSettings;
class HistoryStore;
class ProjectEditor;

/// Name and format of the video, and the run of its render with the progress page. GUI thread.
class CreatePanel : public QWidget
{
    Q_OBJECT
public:
    CreatePanel(ProjectEditor &editor, const AppSettings &settings, HistoryStore &history,
                QWidget *parent = nullptr);
    ~CreatePanel() override;

    Composer &composer() { return m_composer; }

signals:
    void progressStarted();
    void progressFinished(); ///< Once per progressStarted(): success, failure or cancel.
    void progress(int percent);
    void finished(const QString &fileName);
    void fullPreviewClicked();

public slots:
    void on_btnCreate_clicked();
    void on_btnCancel_clicked();
    void on_btnPauseResume_clicked();
    void onProgressTimer();
    void onCancelled();
    void onChangeVideoFormat(int index);

private:
    void setDefaultName();
    QString outputPath() const;
    bool mayReplace(const QString &output);
    bool canBeGenerated() const;
    void start(const QString &output);
    void onFinished(const QString &fileName);
    void onFailed();
    void showSetup();
    void showPauseButton(bool paused);
    void recordHistory(const QString &fileName);
    void refresh();

    ProjectEditor &m_editor;
    const AppSettings &m_settings;
    HistoryStore &m_history;
    std::unique_ptr<Ui::CreatePanel> m_ui;
    Composer m_composer;
    QTimer m_progressTimer;
};

} // namespace velmora
