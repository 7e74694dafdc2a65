// SPDX-License-Identifier: GPL-3.0-or-later
// The controls of the player: buttons, sliders, keys, texts.
#include "chrome/Theme.h"
#include "project/documents/ProjectFile.h"
#include "ui/UiLog.h"
#include "ui/preview/SoundOutput.h"
#include "ui/preview/VideoPlayer.h"
#include "ui/preview/VideoPlayerWidget.h"
#include "ui/preview/VolumeSetting.h"
#include "ui_VideoPlayerWidget.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QScreen>

#include <algorithm>
#include <array>
#include <limits>

namespace velmora
{

namespace
{

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

} // namespace

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

void VideoPlayerWidget::on_btnPlay_clicked()
{
    VideoPlayer &player = *m_ui->player;
    if (m_initTimer.isActive()) {
        stop();
    } else if (player.isStopped()) {
        begin(m_mode);
    } else if (player.isPaused()) {
        emit playing();
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
    if (full) {
        setGeometry(screen()->geometry());
        showFullScreen();
    } else {
        show();
    }
    m_ui->player->setFocus();
}

void VideoPlayerWidget::closeEvent(QCloseEvent *event)
{
    if (!isWindow())
        return;
    event->ignore();
    emit fullSizeToggled();
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
    const std::array<QToolButton *, 2> buttons = {m_ui->btnPreview, m_ui->btnRepeat};
    int width = m_ui->buttonsLayout->spacing();
    for (QToolButton *button : buttons) {
        button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        width += button->sizeHint().width();
    }
    // A row less of buttons is a larger picture.
    const bool compact = height() < kCompactHeight || width > this->width();
    QBoxLayout &wanted = compact ? *m_ui->controlsLayout : *m_ui->buttonsLayout;
    int place = compact ? 2 : 0;
    for (QToolButton *button : buttons) {
        button->setToolButtonStyle(compact ? Qt::ToolButtonIconOnly : Qt::ToolButtonTextBesideIcon);
        button->setSizePolicy(compact ? QSizePolicy::Fixed : QSizePolicy::Expanding,
                              QSizePolicy::Fixed);
        m_ui->controlsLayout->removeWidget(button);
        m_ui->buttonsLayout->removeWidget(button);
        wanted.insertWidget(place++, button);
    }
    m_ui->lblLength->setVisible(!compact);
    QWidget *before = compact ? m_ui->btnStop : m_ui->btnFullSize;
    setTabOrder(before, m_ui->btnPreview);
    setTabOrder(m_ui->btnPreview, m_ui->btnRepeat);
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
    const bool any = firstShown() != nullptr;
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
