// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/preview/SoundOutput.h"

#include "ui/UiLog.h"

#include <QAudio>
#include <QMediaPlayer>
#include <QUrl>

namespace velmora
{

namespace
{

constexpr qint64 kDrift = 100;         // ms that sound and picture may be apart
constexpr qint64 kExact = 20;          // ms; not worth to move the sound for
constexpr qint64 kSettlingTime = 1000; // ms; a moved sound needs some time to report its place

} // namespace

SoundOutput::SoundOutput(QObject *parent) : QObject(parent) {}

SoundOutput::~SoundOutput() = default;

void SoundOutput::createPlayer()
{
    m_player = std::make_unique<QMediaPlayer>();
    connect(m_player.get(), QOverload<QMediaPlayer::Error>::of(&QMediaPlayer::error), this, [this] {
        qCWarning(lcUi) << "The sound cannot be played:" << m_player->errorString();
    });
    applyVolume();
}

bool SoundOutput::load(const QString &file)
{
    if (!m_player && file.isEmpty())
        return true;
    if (!m_player)
        createPlayer();
    m_player->setMedia(file.isEmpty() ? QMediaContent() : QUrl::fromLocalFile(file));
    return m_player->isAvailable() && m_player->error() == QMediaPlayer::NoError;
}

bool SoundOutput::isLoaded() const
{
    return m_player && !m_player->media().isNull();
}

void SoundOutput::moveTo(qint64 position)
{
    if (qAbs(m_player->position() - position) > kExact)
        m_player->setPosition(position);
    m_sinceMove.start();
}

void SoundOutput::prepare(qint64 position)
{
    if (!isLoaded())
        return;
    moveTo(position);
    m_player->pause();
}

void SoundOutput::play(qint64 position)
{
    if (!isLoaded())
        return;
    moveTo(position);
    m_player->play();
}

void SoundOutput::pause()
{
    if (m_player && m_player->state() == QMediaPlayer::PlayingState)
        m_player->pause();
}

void SoundOutput::stop()
{
    if (m_player)
        m_player->stop();
}

void SoundOutput::follow(qint64 position)
{
    if (!m_player || m_player->state() != QMediaPlayer::PlayingState ||
        m_sinceMove.elapsed() < kSettlingTime)
        return;
    const qint64 drift = m_player->position() - position;
    const bool ended = position >= m_player->duration();
    if (ended || qAbs(drift) <= kDrift)
        return;
    qCDebug(lcUi) << "the sound is ahead of the picture by" << drift << "ms";
    m_player->setPosition(position);
    m_sinceMove.start();
}

void SoundOutput::setMuted(bool muted)
{
    m_muted = muted;
    applyVolume();
}

void SoundOutput::setVolume(int percent)
{
    m_volume = qBound(0, percent, 100);
    applyVolume();
}

void SoundOutput::applyVolume()
{
    if (!m_player)
        return;
    const qreal linear = QAudio::convertVolume(m_volume / 100.0, QAudio::LogarithmicVolumeScale,
                                               QAudio::LinearVolumeScale);
    m_player->setVolume(qRound(linear * 100));
    m_player->setMuted(m_muted);
}

} // namespace velmora
