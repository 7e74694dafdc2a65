// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/preview/VideoPlayerWidget.h"

#include "app/AppSettings.h"
#include "chrome/Theme.h"
#include "generator/encoding/EncoderOptions.h"
#include "project/documents/ProjectFile.h"
#include "ui/UiLog.h"
#include "ui/preview/SoundOutput.h"
#include "ui/preview/VideoPlayer.h"
#include "ui/preview/VolumeSetting.h"
#include "ui_VideoPlayerWidget.h"

#include <QKeyEvent>

#include <algorithm>
#include <limits>

namespace velmora
{

namespace
{

constexpr int kLongestWait = 1500;  // ms, for the sound
constexpr int kResizePause = 120;   // ms
constexpr int kSteps = 20;          // key presses from one end of the slider to the other
constexpr int kLongestStep = 5000;  // ms
constexpr int kShortestStep = 200;  // ms
constexpr int kCompactHeight = 300; // px; below it the picture gets the room of the buttons

QString timeText(double position)
{
    const auto seconds = static_cast<qint64>(position) / 1000;
    const QLatin1Char zero('0');
    return QStringLiteral("%1:%2").arg(seconds / 60, 2, 10, zero).arg(seconds % 60, 2, 10, zero);
}

int sliderValue(double position)
{
    return static_cast<int>(std::min<double>(position, std::numeric_limits<int>::max()));
}

const ProjectItem *firstShown(const ProjectFile &project)
{
    for (const ProjectItem *item : project.items()) {
        if (item->isShown())
            return item;
    }
    return nullptr;
}

} // namespace

VideoPlayerWidget::VideoPlayerWidget(const AppSettings &settings, QWidget *parent)
    : QWidget(parent), m_settings(settings), m_ui(std::make_unique<Ui::VideoPlayerWidget>()),
      m_SoundPlayer(new SoundOutput(this))
{
    m_ui->setupUi(this);
    m_initTimer.setSingleShot(true);
    m_resizeTimer.setSingleShot(true);
    setUpControls();
    connectAll();
    showStopped();
}

VideoPlayerWidget::~VideoPlayerWidget()
{
    VolumeSetting{m_SoundPlayer->volume(), m_SoundPlayer->isMuted()}.save();
    m_SoundPlayer->load(QString()); // lets go of the file before it is removed
}

void VideoPlayerWidget::setUpControls()
{
    m_ui->player->setEmptyText(tr("Add photos to see the slideshow here"));
    m_ui->btnStop->setIcon(Theme::icon(QStringLiteral("stop")));
    m_ui->btnPreview->setIcon(Theme::icon(QStringLiteral("film")));
    m_ui->btnRepeat->setIcon(Theme::icon(QStringLiteral("repeat")));
    m_ui->btnFullSize->setIcon(Theme::icon(QStringLiteral("fullscreen")));
    const VolumeSetting volume = VolumeSetting::load();
    m_ui->slVolume->setValue(volume.percent);
    m_ui->btnMute->setChecked(volume.muted);
    m_SoundPlayer->setVolume(volume.percent);
    m_SoundPlayer->setMuted(volume.muted);
    updateVolumeIcon();
}

void VideoPlayerWidget::connectAll()
{
    const VideoPlayer *player = m_ui->player;
    connect(player, &VideoPlayer::positionChanged, this, &VideoPlayerWidget::onPositionChanged);
    connect(player, &VideoPlayer::started, this, &VideoPlayerWidget::onStarted);
    connect(player, &VideoPlayer::stopped, this, &VideoPlayerWidget::onStopped);
    connect(player, &VideoPlayer::generatingStarted, this, &VideoPlayerWidget::onGenerateStarted);
    connect(player, &VideoPlayer::generatingFinished, this, &VideoPlayerWidget::onGenerateFinished);
    connect(player, &VideoPlayer::resized, this, [this] { m_resizeTimer.start(kResizePause); });
    connect(player, &VideoPlayer::clicked, this, [this] {
        if (isPlaying())
            on_btnPlay_clicked();
        else
            emit clicked();
    });
    connect(&m_resizeTimer, &QTimer::timeout, this, &VideoPlayerWidget::fitPictures);
    connect(&m_initTimer, &QTimer::timeout, this, &VideoPlayerWidget::onInitTimerElapsed);
    connect(&m_sound, &PreviewSound::changed, this, &VideoPlayerWidget::updateAudio);
    connect(m_ui->slDuration, &QSlider::sliderReleased, this, [this] {
        if (isAdvancing())
            playSound();
    });
    connect(m_ui->btnFullSize, &QToolButton::clicked, this, &VideoPlayerWidget::fullSizeToggled);
}

void VideoPlayerWidget::setProject(ProjectFile *project)
{
    qCDebug(lcUi) << Q_FUNC_INFO;
    stop();
    m_project = project;
    m_item = nullptr;
    m_mode = Mode::Slideshow;
    showStopped();
}

void VideoPlayerWidget::setSlide(ProjectItem *slide)
{
    if (slide == m_item)
        return;
    if (!slide)
        qCDebug(lcUi) << "set m_Item to nullptr";
    m_item = slide;
    if (isPlaying() && m_mode == Mode::Slideshow) {
        updateControls();
        return;
    }
    stop();
    m_mode = slide && slide->isShown() ? Mode::Transition : Mode::Slideshow;
    showStopped();
}

void VideoPlayerWidget::playSlideshow()
{
    stop();
    begin(Mode::Slideshow);
}

void VideoPlayerWidget::playTransition()
{
    stop();
    if (m_item && m_item->isShown())
        begin(Mode::Transition);
}

void VideoPlayerWidget::begin(Mode mode)
{
    m_mode = mode;
    const PreviewScript::Pointer script = makeScript();
    if (!script)
        return;
    m_ui->player->setScript(script);
    showDuration(script->totalDuration());
    updateTitle();
    requireSound();
    m_ui->player->setWaiting(m_sound.isPending());
    m_initTimer.start(m_sound.isPending() ? kLongestWait : 0);
    updateControls();
}

void VideoPlayerWidget::onInitTimerElapsed()
{
    m_initTimer.stop();
    m_ui->player->setWaiting(false);
    m_ui->player->play();
}

void VideoPlayerWidget::stop()
{
    if (m_initTimer.isActive()) {
        m_initTimer.stop();
        m_ui->player->setWaiting(false);
        onStopped();
    }
    m_ui->player->stop();
}

bool VideoPlayerWidget::isPlaying() const
{
    return m_initTimer.isActive() || !m_ui->player->isStopped();
}

bool VideoPlayerWidget::isAdvancing() const
{
    return !m_ui->player->isStopped() && !m_ui->player->isPaused();
}

PreviewScript::Pointer VideoPlayerWidget::makeScript() const
{
    if (!m_project)
        return nullptr;
    if (m_mode == Mode::Transition)
        return m_item ? PreviewScript::transition(*m_project, *m_item, m_settings, frameSize())
                      : nullptr;
    return PreviewScript::slideshow(*m_project, m_settings, frameSize());
}

QSize VideoPlayerWidget::frameSize() const
{
    return m_ui->player->frameSize(EncoderOptions::evenSize(m_project->resolution()));
}

void VideoPlayerWidget::showStopped()
{
    const ProjectItem *item = m_item;
    if (m_project && m_mode == Mode::Slideshow && !item)
        item = firstShown(*m_project);
    PreviewScript::Pointer script;
    double duration = 0;
    if (m_project && item) {
        script = PreviewScript::still(*m_project, *item, m_settings, frameSize());
        const PreviewScript::Pointer played = m_mode == Mode::Transition ? makeScript() : nullptr;
        duration =
            played ? played->totalDuration()
                   : static_cast<double>(
                         Timeline::ofProject(*m_project, m_settings.transitionTime).totalLength());
    }
    m_ui->player->setScript(script);
    showDuration(duration);
    showTime(0);
    updateTitle();
    updateControls();
}

void VideoPlayerWidget::refresh()
{
    if (m_initTimer.isActive()) {
        const Mode mode = m_mode;
        stop();
        begin(mode);
        return;
    }
    if (m_ui->player->isStopped()) {
        showStopped();
        return;
    }
    const PreviewScript::Pointer script = makeScript();
    if (!script) {
        stop();
        return;
    }
    m_ui->player->setScript(script, m_ui->player->position());
    showDuration(script->totalDuration());
    updateTitle();
    requireSound();
}

void VideoPlayerWidget::fitPictures()
{
    VideoPlayer &player = *m_ui->player;
    const PreviewScript::Pointer script = player.script();
    if (script && m_project && script->format().size != frameSize())
        player.setScript(script->withSize(frameSize()), player.position());
}

void VideoPlayerWidget::requireSound()
{
    const ProjectSound sound = ProjectSound::of(*m_project);
    const qint64 length = Timeline::ofProject(*m_project, m_settings.transitionTime).totalLength();
    if (m_sound.isFor(sound, length))
        return;
    m_SoundPlayer->load(QString());
    m_loadedTrack.clear();
    m_ui->lblSoundError->hide();
    m_sound.require(sound, length);
}

void VideoPlayerWidget::updateAudio()
{
    qCDebug(lcUi) << "VideoPlayerWidget::updateAudio";
    const QString track = m_sound.track();
    if (track != m_loadedTrack) {
        m_loadedTrack = track;
        qCDebug(lcUi) << "load sound result =" << m_SoundPlayer->load(track);
    }
    m_ui->lblSoundError->setText(m_sound.errorText());
    m_ui->lblSoundError->setVisible(!m_sound.errorText().isEmpty());
    if (m_initTimer.isActive())
        onInitTimerElapsed();
    else if (isAdvancing())
        playSound();
}

void VideoPlayerWidget::playSound()
{
    const VideoPlayer &player = *m_ui->player;
    const auto audioPos = static_cast<qint64>(player.script()->offset() + player.position());
    qCDebug(lcUi) << "(VideoPlayerWidget) m_SoundPlayer->play, m_AudioPos=" << audioPos;
    m_SoundPlayer->play(audioPos);
}

void VideoPlayerWidget::onStarted()
{
    playSound();
    updateControls();
}

void VideoPlayerWidget::onStopped()
{
    qCDebug(lcUi) << "Stopped!";
    m_SoundPlayer->stop();
    showStopped();
}

void VideoPlayerWidget::onGenerateStarted()
{
    qCDebug(lcUi) << "generate started";
    m_SoundPlayer->pause();
}

void VideoPlayerWidget::onGenerateFinished()
{
    qCDebug(lcUi) << "generate finished";
    if (isAdvancing() && !m_ui->slDuration->isSliderDown())
        playSound();
}

void VideoPlayerWidget::onPositionChanged(double position)
{
    showTime(position);
    if (isAdvancing())
        m_SoundPlayer->follow(static_cast<qint64>(m_ui->player->script()->offset() + position));
}

void VideoPlayerWidget::on_btnPlay_clicked()
{
    VideoPlayer &player = *m_ui->player;
    if (m_initTimer.isActive()) {
        stop();
    } else if (player.isStopped()) {
        begin(m_mode);
    } else if (player.isPaused()) {
        player.play();
    } else {
        player.pause();
        m_SoundPlayer->pause();
        updateControls();
    }
}

void VideoPlayerWidget::on_btnStop_clicked()
{
    stop();
}

void VideoPlayerWidget::on_btnRepeat_clicked()
{
    playTransition();
}

void VideoPlayerWidget::on_btnPreview_clicked()
{
    playSlideshow();
}

void VideoPlayerWidget::on_btnMute_clicked()
{
    m_SoundPlayer->setMuted(m_ui->btnMute->isChecked());
    updateVolumeIcon();
}

void VideoPlayerWidget::on_slDuration_sliderMoved(int position)
{
    qCDebug(lcUi) << "slider moved to" << position;
    seek(position);
}

void VideoPlayerWidget::seek(double position)
{
    VideoPlayer &player = *m_ui->player;
    if (player.isStopped()) {
        const PreviewScript::Pointer script = makeScript();
        if (!script)
            return;
        m_initTimer.stop();
        player.setWaiting(false);
        requireSound();
        player.setScript(script, position);
        player.pause();
        updateControls();
    }
    player.setPosition(position);
    if (!isAdvancing())
        return;
    if (m_ui->slDuration->isSliderDown())
        m_SoundPlayer->pause();
    else
        playSound();
}

void VideoPlayerWidget::on_slVolume_sliderMoved(int)
{
    // Whoever turns the volume wants to hear it.
    m_ui->btnMute->setChecked(false);
    on_btnMute_clicked();
}

void VideoPlayerWidget::on_slVolume_valueChanged(int value)
{
    m_SoundPlayer->setVolume(value);
    updateVolumeIcon();
}

void VideoPlayerWidget::keyPressEvent(QKeyEvent *event)
{
    const QSlider &slider = *m_ui->slDuration;
    switch (event->key()) {
    case Qt::Key_Space:
        m_ui->btnPlay->click();
        return;
    case Qt::Key_Left:
    case Qt::Key_Right:
        if (slider.isEnabled()) {
            const int step =
                event->key() == Qt::Key_Left ? -slider.singleStep() : slider.singleStep();
            seek(slider.value() + step);
        }
        return;
    case Qt::Key_M:
        m_ui->btnMute->click();
        return;
    case Qt::Key_F:
        emit fullSizeToggled();
        return;
    case Qt::Key_Escape:
        if (isWindow()) {
            emit fullSizeToggled();
            return;
        }
        break;
    default:
        break;
    }
    QWidget::keyPressEvent(event);
}

void VideoPlayerWidget::showFullSize(bool full)
{
    m_ui->btnFullSize->setIcon(
        Theme::icon(full ? QStringLiteral("fullscreen-exit") : QStringLiteral("fullscreen")));
    if (full)
        showFullScreen();
    else
        show();
    m_ui->player->setFocus();
}

void VideoPlayerWidget::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    arrangeButtons();
}

void VideoPlayerWidget::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        m_ui->retranslateUi(this);
        m_ui->player->setEmptyText(tr("Add photos to see the slideshow here"));
        updateTitle();
        updateControls();
        updateVolumeIcon();
        arrangeButtons();
    }
    QWidget::changeEvent(event);
}

void VideoPlayerWidget::arrangeButtons()
{
    const bool compact = height() < kCompactHeight;
    QBoxLayout &wanted = compact ? *m_ui->controlsLayout : *m_ui->buttonsLayout;
    int place = compact ? 2 : 0;
    int width = m_ui->buttonsLayout->spacing();
    for (QToolButton *button : {m_ui->btnPreview, m_ui->btnRepeat}) {
        button->setToolButtonStyle(compact ? Qt::ToolButtonIconOnly : Qt::ToolButtonTextBesideIcon);
        button->setSizePolicy(compact ? QSizePolicy::Fixed : QSizePolicy::Expanding,
                              QSizePolicy::Fixed);
        m_ui->controlsLayout->removeWidget(button);
        m_ui->buttonsLayout->removeWidget(button);
        wanted.insertWidget(place++, button);
        width += button->sizeHint().width();
    }
    m_ui->buttonsLayout->setDirection(width > this->width() ? QBoxLayout::TopToBottom
                                                            : QBoxLayout::LeftToRight);
    m_ui->lblLength->setVisible(!compact);
}

void VideoPlayerWidget::showDuration(double duration)
{
    const int length = sliderValue(duration);
    m_ui->slDuration->setMaximum(length);
    m_ui->slDuration->setSingleStep(qBound(kShortestStep, length / kSteps, kLongestStep));
    m_ui->slDuration->setPageStep(2 * m_ui->slDuration->singleStep());
    m_ui->lblLength->setText(QStringLiteral("/ ") + timeText(duration));
}

void VideoPlayerWidget::showTime(double position)
{
    if (!m_ui->slDuration->isSliderDown())
        m_ui->slDuration->setValue(sliderValue(position));
    m_ui->lblTime->setText(timeText(position));
}

void VideoPlayerWidget::updateTitle()
{
    m_ui->lblTitle->setText(
        m_mode == Mode::Transition
            ? tr("Preview transition to slide %1").arg(m_project->items().indexOf(m_item) + 1)
            : tr("Full preview"));
}

void VideoPlayerWidget::updateControls()
{
    const bool any = m_project && firstShown(*m_project);
    const bool plays = m_initTimer.isActive() || isAdvancing();
    m_ui->btnPlay->setIcon(Theme::icon(plays ? QStringLiteral("pause") : QStringLiteral("play")));
    m_ui->btnPlay->setToolTip(plays ? tr("Pause (Space)") : tr("Play (Space)"));
    m_ui->btnPlay->setAccessibleName(plays ? tr("Pause") : tr("Play"));
    m_ui->btnPlay->setEnabled(any);
    m_ui->slDuration->setEnabled(any);
    m_ui->btnPreview->setEnabled(any);
    m_ui->btnStop->setEnabled(isPlaying());
    m_ui->btnRepeat->setEnabled(m_item && m_item->isShown());
}

void VideoPlayerWidget::updateVolumeIcon()
{
    const bool silent = m_ui->btnMute->isChecked();
    m_ui->btnMute->setIcon(Theme::icon(silent ? QStringLiteral("mute") : QStringLiteral("volume")));
    m_ui->btnMute->setToolTip(silent ? tr("Sound on (M)") : tr("Mute (M)"));
}

} // namespace velmora
