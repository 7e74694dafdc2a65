// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/playback/VideoDialog.h"

#include "chrome/Theme.h"
#include "sharing/SharingLog.h"
#include "sharing/playback/VideoPicture.h"
#include "ui_VideoDialog.h"

#include <QAbstractVideoSurface>
#include <QFileInfo>
#include <QShortcut>

#include <limits>

namespace velmora
{

namespace
{

constexpr int kPatience = 5000;      // ms; what has only sound is not for this player
constexpr int kNotifyInterval = 100; // ms
constexpr int kStep = 5000;          // ms

QString timeText(qint64 milliseconds)
{
    const qint64 seconds = milliseconds / 1000;
    const QLatin1Char zero('0');
    return QStringLiteral("%1:%2").arg(seconds / 60, 2, 10, zero).arg(seconds % 60, 2, 10, zero);
}

int sliderValue(qint64 milliseconds)
{
    return static_cast<int>(qBound<qint64>(0, milliseconds, std::numeric_limits<int>::max()));
}

} // namespace

VideoDialog::VideoDialog(const QString &fileName, QWidget *parent)
    : CorDialog(parent), m_fileName(fileName), m_ui(std::make_unique<Ui::VideoDialog>())
{
    setObjectName(QStringLiteral("videoDialog"));
    m_ui->setupUi(content());
    setWindowTitle(QFileInfo(fileName).fileName());
    m_ui->slPosition->setSingleStep(kStep);
    m_ui->slPosition->setPageStep(2 * kStep);
    m_ui->slPosition->setFocus();
    connect(m_ui->picture, &VideoPicture::frameShown, this, &VideoDialog::onFrame);
    connect(m_ui->picture, &VideoPicture::clicked, this, &VideoDialog::on_btnPlay_clicked);
    connect(m_ui->btnPlay, &QToolButton::clicked, this, &VideoDialog::on_btnPlay_clicked);
    connect(m_ui->slPosition, &QSlider::sliderMoved, this, &VideoDialog::on_slPosition_sliderMoved);
    // Not by key events: the button would take the arrows for itself.
    const auto onKey = [this](Qt::Key key, auto act) {
        connect(new QShortcut(key, this), &QShortcut::activated, this, act);
    };
    onKey(Qt::Key_Space, &VideoDialog::on_btnPlay_clicked);
    onKey(Qt::Key_Left, [this] { seek(m_player->position() - kStep); });
    onKey(Qt::Key_Right, [this] { seek(m_player->position() + kStep); });
    m_patience.setSingleShot(true);
    connect(&m_patience, &QTimer::timeout, this, &VideoDialog::fail);
}

VideoDialog::~VideoDialog() = default;

void VideoDialog::createPlayer()
{
    m_player = std::make_unique<QMediaPlayer>(nullptr, QMediaPlayer::VideoSurface);
    m_player->setNotifyInterval(kNotifyInterval);
    m_player->setVideoOutput(m_ui->picture->surface());
    connect(m_player.get(), &QMediaPlayer::positionChanged, this, &VideoDialog::showPosition);
    connect(m_player.get(), &QMediaPlayer::durationChanged, this, &VideoDialog::showLength);
    connect(m_player.get(), &QMediaPlayer::stateChanged, this, &VideoDialog::updateButton);
    // Queued: the player is in the middle of its own work when it reports an error.
    connect(m_player.get(), QOverload<QMediaPlayer::Error>::of(&QMediaPlayer::error), this,
            &VideoDialog::fail, Qt::QueuedConnection);
}

void VideoDialog::play()
{
    createPlayer();
    updateButton();
    if (!m_player->isAvailable()) {
        QMetaObject::invokeMethod(this, &VideoDialog::fail, Qt::QueuedConnection);
        return;
    }
    m_patience.start(kPatience);
    m_player->setMedia(QUrl::fromLocalFile(m_fileName));
    m_player->play();
}

void VideoDialog::onFrame()
{
    if (m_ended || !m_patience.isActive())
        return;
    m_patience.stop();
    resize(sizeHint());
    open();
}

void VideoDialog::fail()
{
    if (m_ended)
        return;
    qCWarning(lcSharing).noquote() << "Cannot play" << m_fileName << m_player->errorString();
    done(Rejected);
    emit failed();
}

void VideoDialog::done(int result)
{
    m_ended = true;
    m_patience.stop();
    if (m_player)
        m_player->stop();
    CorDialog::done(result);
}

void VideoDialog::on_btnPlay_clicked()
{
    if (m_player->state() == QMediaPlayer::PlayingState)
        m_player->pause();
    else
        m_player->play();
}

void VideoDialog::on_slPosition_sliderMoved(int position)
{
    seek(position);
}

void VideoDialog::seek(qint64 position)
{
    const qint64 place = qBound<qint64>(0, position, m_player->duration());
    // At its end it has stopped, and a stopped player shows no other place.
    if (m_player->state() == QMediaPlayer::StoppedState)
        m_player->pause();
    m_player->setPosition(place);
    showPosition(place);
}

void VideoDialog::showPosition(qint64 position)
{
    if (!m_ui->slPosition->isSliderDown())
        m_ui->slPosition->setValue(sliderValue(position));
    m_ui->lblTime->setText(timeText(position));
}

void VideoDialog::showLength(qint64 length)
{
    m_ui->slPosition->setMaximum(sliderValue(length));
    m_ui->lblLength->setText(timeText(length));
}

void VideoDialog::updateButton()
{
    const bool plays = m_player->state() == QMediaPlayer::PlayingState;
    m_ui->btnPlay->setIcon(Theme::icon(plays ? QStringLiteral("pause") : QStringLiteral("play")));
    m_ui->btnPlay->setToolTip(plays ? tr("Pause (Space)") : tr("Play (Space)"));
    m_ui->btnPlay->setAccessibleName(plays ? tr("Pause") : tr("Play"));
}

} // namespace velmora
