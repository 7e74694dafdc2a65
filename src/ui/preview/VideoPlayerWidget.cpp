// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/preview/VideoPlayerWidget.h"

#include "app/AppSettings.h"
#include "generator/encoding/EncoderOptions.h"
#include "project/documents/ProjectFile.h"
#include "ui/UiLog.h"
#include "ui/preview/SoundOutput.h"
#include "ui/preview/VideoPlayer.h"
#include "ui/preview/VolumeSetting.h"
#include "ui_VideoPlayerWidget.h"

namespace velmora
{

namespace
{

constexpr int kLongestWait = 1500; // ms, for the sound
constexpr int kSoundStart = 200;   // ms that a loaded sound takes to be ready
constexpr int kResizePause = 120;  // ms

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
        if (isPlaying() || isWindow())
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
    emit playing();
    m_ui->player->setScript(script);
    showDuration(script->totalDuration());
    updateTitle();
    requireSound();
    m_SoundPlayer->prepare(static_cast<qint64>(script->offset()));
    m_ui->player->setWaiting(m_sound.isPending());
    m_initTimer.start(m_sound.isPending()         ? kLongestWait
                      : m_SoundPlayer->isLoaded() ? kSoundStart
                                                  : 0);
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

const ProjectItem *VideoPlayerWidget::firstShown() const
{
    if (!m_project)
        return nullptr;
    for (const ProjectItem *item : m_project->items()) {
        if (item->isShown())
            return item;
    }
    return nullptr;
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
    const ProjectItem *item = m_item ? m_item : firstShown();
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
    if (m_initTimer.isActive()) {
        m_SoundPlayer->prepare(static_cast<qint64>(m_ui->player->script()->offset()));
        m_initTimer.start(kSoundStart);
    } else if (isAdvancing()) {
        playSound();
    }
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

} // namespace velmora
