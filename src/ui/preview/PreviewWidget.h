// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFrame>
#include <QTimer>

namespace velmora
{

struct AppSettings;
class ProjectEditor;
class ProjectFile;
class ProjectItem;
class VideoPlayerWidget;

/// The preview area of the editor: shows the selected slide, plays the transition into it or the
/// whole slideshow, and follows every edit of the project. GUI thread.
class PreviewWidget : public QFrame
{
    Q_OBJECT
public:
    /// @p editor and @p settings must outlive the widget.
    PreviewWidget(ProjectEditor &editor, const AppSettings &settings, QWidget *parent = nullptr);
    ~PreviewWidget() override;

    /// Playing or paused.
    bool isPlaying() const;

public slots:
    /// The selected slide; null: none.
    void setSlide(velmora::ProjectItem *slide);
    /// Plays the transition into the selected slide.
    void previewSlide();
    /// Plays the whole slideshow from its start.
    void playFull();
    void stop();
    /// Puts the player back in its place, if it covers the screen.
    void leaveFullSize();
    /// The settings have changed: shows the project as it is with them.
    void refreshSoon() { m_changes.start(); }

signals:
    /// Playing is about to begin or to go on after a pause.
    void playing();
    /// The picture was clicked while nothing played.
    void previewClicked();

protected:
    void hideEvent(QHideEvent *event) override;

private:
    void takeProject();
    void onSlidesChanged();
    void toggleFullSize();

    ProjectEditor &m_editor;
    VideoPlayerWidget *m_player;
    ProjectFile *m_project = nullptr; ///< The one that the player has.
    QTimer m_changes;                 ///< Several changes at once are followed once.
};

} // namespace velmora
