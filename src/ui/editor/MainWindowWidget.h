// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/model/PhotoImporter.h"
#include "ui/model/ProjectEditor.h"

#include <QWidget>

#include <memory>

class QStackedWidget;

namespace Ui
{
class SettingsFrames;
}

namespace velmora
{

class CreatePanel;
class HistoryStore;
class SlidesPage;

/// The editor page: slide table, settings of the slideshow, and the making of the video. The
/// caption editor, the audio list and the preview have their places in "pageText",
/// "audioListHost" and "previewHost". GUI thread.
class MainWindowWidget : public QWidget
{
    Q_OBJECT
public:
    MainWindowWidget(AppSettings &settings, HistoryStore &history, QWidget *parent = nullptr);
    ~MainWindowWidget() override;

    /// Lends a project, which must outlive its being set; null: none.
    void setProject(ProjectFile *project);
    ProjectEditor &editor() { return m_editor; }
    CreatePanel &createPanel() { return *m_create; }

signals:
    void progressStarted();
    void progressFinished();
    void progress(int percent);
    void finished(const QString &fileName);
    void textEditingBegan(int totalSlide);
    void textEditingFinished();
    void rotateChanged();

public slots:
    /// Photos and folders go after the row @p newRow; negative: to the end. Unusable ones are
    /// listed once at the end.
    void onFilesDropped(const QStringList &files, int newRow);
    /// Moves one slide so that it follows the slide at @p after.
    void onRowsMoved(int from, int after);
    void onResolutionChanged(const QVariant &value);
    void onTransitionDurationChanged(const QVariant &value);
    void onFadeChanged(const QVariant &value);
    void onOffsetChanged(const QVariant &value);
    void onAudioLoopClicked(bool on);

private:
    void setUpLayout();
    void setUpSettings();
    void setUpHelp();
    void updateSettings();
    void onImported(const PhotoImport &import);

    AppSettings &m_settings;
    ProjectEditor m_editor;
    PhotoImporter m_importer;
    QVector<QPair<QStringList, int>> m_waiting; ///< Drops made during an import.
    std::unique_ptr<Ui::SettingsFrames> m_ui;
    QWidget *m_frames;
    SlidesPage *m_slides;
    CreatePanel *m_create;
    QStackedWidget *m_stack;
};

} // namespace velmora
