// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/audio/TrackPlayer.h"

#include "ui/UiLog.h"

#include <QMediaPlayer>
#include <QUrl>

namespace velmora
{

TrackPlayer::TrackPlayer(QObject *parent) : QObject(parent) {}

void TrackPlayer::create()
{
    constexpr int kNotifyInterval = 100; // ms
    m_player = new QMediaPlayer(this);
    m_player->setNotifyInterval(kNotifyInterval);
    connect(m_player, &QMediaPlayer::positionChanged, this, &TrackPlayer::progressChanged);
    connect(m_player, &QMediaPlayer::mediaStatusChanged, this,
            [this](QMediaPlayer::MediaStatus status) {
                if (status == QMediaPlayer::EndOfMedia)
                    emit ended();
            });
    // Queued: the player is in the middle of its own work when it reports an error.
    connect(m_player, QOverload<QMediaPlayer::Error>::of(&QMediaPlayer::error), this,
            &TrackPlayer::onError, Qt::QueuedConnection);
}

void TrackPlayer::play(const QString &fileName)
{
    if (!m_player)
        create();
    m_fileName = fileName;
    m_player->setMedia(QUrl::fromLocalFile(fileName));
    m_player->play();
}

void TrackPlayer::stop()
{
    m_fileName.clear();
    if (m_player) {
        m_player->stop();
        m_player->setMedia({}); // closes the file
    }
}

double TrackPlayer::progress() const
{
    if (!m_player || m_player->duration() <= 0)
        return 0;
    return qBound(0.0, double(m_player->position()) / double(m_player->duration()), 1.0);
}

void TrackPlayer::onError()
{
    if (m_fileName.isEmpty() || m_player->error() == QMediaPlayer::NoError)
        return;
    const QString fileName = m_fileName;
    const QString reason = m_player->errorString();
    qCWarning(lcUi).noquote() << "Cannot play" << fileName << reason;
    stop();
    emit failed(fileName, reason);
    emit ended();
}

} // namespace velmora
