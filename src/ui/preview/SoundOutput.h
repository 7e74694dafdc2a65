// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QElapsedTimer>
#include <QObject>

#include <memory>

class QMediaPlayer;

namespace velmora
{

/// The loudspeaker side of a preview: plays a file beside a clock and follows it. Without a sound
/// device everything is accepted and nothing is heard. GUI thread.
class SoundOutput : public QObject
{
    Q_OBJECT
public:
    explicit SoundOutput(QObject *parent = nullptr);
    ~SoundOutput() override;

    /// Loads a file; empty: none. False when this system cannot play sound.
    bool load(const QString &file);
    bool isLoaded() const;
    /// Makes ready to play from @p position ms on, so that play() is heard at once.
    void prepare(qint64 position);
    void play(qint64 position); ///< ms
    void pause();
    void stop();
    /// Called often while playing; moves the sound where it has drifted from @p position ms.
    void follow(qint64 position);

    void setMuted(bool muted);
    bool isMuted() const { return m_muted; }
    void setVolume(int percent); ///< As loudness is felt.
    int volume() const { return m_volume; }

private:
    void createPlayer();
    void applyVolume();
    void moveTo(qint64 position);

    std::unique_ptr<QMediaPlayer> m_player; ///< Made with the first file: that loads much.
    QElapsedTimer m_sinceMove;
    bool m_muted = false;
    int m_volume = 100;
};

} // namespace velmora
