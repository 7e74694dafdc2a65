// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/model/ProjectEditor.h"

#include <QVariant>
#include <QWidget>

class QAction;
class QJsonObject;
class QStackedWidget;

namespace velmora
{

class AudioListWidget;
class CreatePanel;
class EditorSide;
class HistoryStore;
class PhotoImports;
class PreviewWidget;
class SlidesPage;
class TextEditWidget;
class VideoSettingsFrame;

/// The editor page: slide table, preview, settings of the slideshow, and the making of the video.
/// Edits the project that is lent to it. GUI thread.
class MainWindowWidget : public QWidget
{
    Q_OBJECT
public:
    /// @p settings and @p history must outlive it.
    MainWindowWidget(AppSettings &settings, HistoryStore &history, QWidget *parent = nullptr);
    ~MainWindowWidget() override;

    /// Lends a project, which must outlive its being set; null: none. A running import ends.
    void setProject(ProjectFile *project);
    ProjectEditor &editor() { return m_editor; }
    CreatePanel &createPanel() { return *m_create; }
    QAction *undoAction() const { return m_undo; }
    QAction *redoAction() const { return m_redo; }
    bool isGenerating() const;
    /// Whether a caption is being edited; the tool row is of no use meanwhile.
    bool isEditingText() const;
    /// Whether that caption has changes that are not saved.
    bool hasUnsavedText() const;
    /// Gives the keys to the slide table, unless a caption is being edited.
    void focusSlides();
    /// Takes these changes over into the project and leaves the caption.
    void saveText();
    /// The open project as saveText() would leave it.
    void toJson(QJsonObject &document) const;

signals:
    void progressStarted();
    void progressFinished(); ///< Once per progressStarted().
    void progress(int percent);
    void pausedChanged(bool paused);        ///< Between progressStarted() and progressFinished().
    void failed(const QString &reason);     ///< After progressFinished(): there is no video.
    void recorded();                        ///< The history has kept the project as it is.
    void finished(const QString &fileName); ///< After progressFinished(): the video is there.
    void textEditingBegan(int totalSlide);
    void textEditingFinished();
    void unsavedTextChanged(); ///< hasUnsavedText() may have changed.
    void rotateChanged();

public slots:
    /// Photos and folders go after the row @p newRow; negative: to the end. Unusable ones are
    /// listed once at the end.
    void onFilesDropped(const QStringList &files, int newRow);
    /// Adds the photos of a folder and its subfolders at the end.
    void addFolder(const QString &folder);
    /// Moves one slide so that it follows the slide at @p after.
    void onRowsMoved(int from, int after);
    void onPreviewClicked();
    void onFullPreview();
    /// The whole video was made.
    void onFullVideoGenerated(const QString &fileName);
    /// Takes over changed settings.
    void updateFromSettings();

protected:
    void changeEvent(QEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void setUpSlideStack();
    void setUpSide();
    void setUpActions();
    void retranslate();
    void connectParts();
    void updateActions();
    void updateObstacle();
    void setGenerating(bool generating);
    void silence();
    void fitSide();
    void editCaption(ProjectItem *slide);
    void editCaptionOfAll();
    void beginTextEditing();
    void endTextEditing();

    AppSettings &m_settings;
    ProjectEditor m_editor;
    QAction *m_undo;
    QAction *m_redo;
    QAction *m_addAudio;
    SlidesPage *m_slides;
    PhotoImports *m_imports;
    PreviewWidget *m_preview;
    VideoSettingsFrame *m_video;
    AudioListWidget *m_audio;
    CreatePanel *m_create;
    EditorSide *m_side;
    TextEditWidget *m_text;
    QStackedWidget *m_stack;
};

} // namespace velmora
