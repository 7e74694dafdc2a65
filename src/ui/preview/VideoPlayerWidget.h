// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/preview/PreviewScript.h"
#include "ui/preview/PreviewSound.h"

#include <QTimer>
#include <QWidget>

#include <memory>

namespace Ui
{
class VideoPlayerWidget;
}

namespace velmora
{

class SoundOutput;

/// A player with its controls, for the whole slideshow or for the transition into one slide, with
/// the slideshow's own sound track beside the pictures. Stopped, it shows the slide. Without a
/// sound device only the pictures play. GUI thread.
class VideoPlayerWidget : public QWidget
{
    Q_OBJECT
public:
    /// @p settings must outlive the widget. The volume is kept in the settings file.
    explicit VideoPlayerWidget(const AppSettings &settings, QWidget *parent = nullptr);
    ~VideoPlayerWidget() override;

    /// Lends a project (null: none), which must outlive its being set. Stops.
    void setProject(ProjectFile *project);
    /// The slide whose transition is previewed; null: none. A slideshow that plays goes on.
    void setSlide(ProjectItem *slide);
    ProjectItem *slide() const { return m_item; }

    void playSlideshow();
    void playTransition();
    void stop();
    /// The project has changed: shows it as it is now, from the same position on.
    void refresh();
    /// As a window over the whole screen, or back in its place.
    void showFullSize(bool full);
    /// Playing, paused, or about to play.
    bool isPlaying() const;

signals:
    /// Playing is about to begin or to go on after a pause.
    void playing();
    void clicked(); ///< On the picture in its place, while nothing plays.
    void fullSizeToggled();

public slots:
    void on_btnPlay_clicked();
    void on_btnStop_clicked();
    void on_btnRepeat_clicked();
    void on_btnPreview_clicked();
    void on_btnMute_clicked();
    void on_slDuration_sliderMoved(int position);
    void on_slVolume_sliderMoved(int value);
    void on_slVolume_valueChanged(int value);
    void onPositionChanged(double position);
    void onStarted();
    void onStopped();
    void onInitTimerElapsed();
    void onGenerateStarted();
    void onGenerateFinished();
    /// Loads the sound track that was prepared last.
    void updateAudio();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    /// Closing the full screen puts the player back in its place.
    void closeEvent(QCloseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    enum class Mode { Slideshow, Transition };

    void setUpControls();
    void connectAll();
    void begin(Mode mode);
    const ProjectItem *firstShown() const;
    PreviewScript::Pointer makeScript() const;
    QSize frameSize() const;
    void showStopped();
    void showDuration(double duration);
    void showTime(double position);
    void requireSound();
    void playSound();
    bool isAdvancing() const;
    void seek(double position);
    void fitPictures();
    void arrangeButtons();
    void updateTitle();
    void updateControls();
    void updateVolumeIcon();

    const AppSettings &m_settings;
    std::unique_ptr<Ui::VideoPlayerWidget> m_ui;
    ProjectFile *m_project = nullptr;
    ProjectItem *m_item = nullptr;
    Mode m_mode = Mode::Slideshow;
    PreviewSound m_sound;
    SoundOutput *m_SoundPlayer;
    QString m_loadedTrack;
    QTimer m_initTimer;   ///< The longest that playing waits for the sound.
    QTimer m_resizeTimer; ///< Pictures of the new size are made when resizing has ended.
};

} // namespace velmora
