// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>

class QMediaPlayer;

namespace velmora
{

/// Plays one sound file for listening. The player behind it is made at the first need. GUI thread.
class TrackPlayer : public QObject
{
    Q_OBJECT
public:
    explicit TrackPlayer(QObject *parent = nullptr);

    /// Plays @p fileName from its start, in place of what is playing.
    void play(const QString &fileName);
    void stop();
    /// How much of the file was heard, 0 to 1.
    double progress() const;

signals:
    void progressChanged(); ///< Several times a second.
    void ended();           ///< The file was heard to its end, or cannot be played.
    void failed(const QString &fileName, const QString &reason); ///< Before ended().

private:
    void create();
    void onError();

    QMediaPlayer *m_player = nullptr;
    QString m_fileName;
};

} // namespace velmora
