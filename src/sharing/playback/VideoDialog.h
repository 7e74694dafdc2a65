// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "chrome/CorDialog.h"

#include <QMediaPlayer>
#include <QTimer>

#include <memory>

namespace Ui
{
class VideoDialog;
}

namespace velmora
{

/// Plays a video file. GUI thread.
class VideoDialog : public CorDialog
{
    Q_OBJECT
public:
    explicit VideoDialog(const QString &fileName, QWidget *parent = nullptr);
    ~VideoDialog() override;

    /// Loads the video, and opens the dialog with its first picture.
    void play();
    /// Ends without failed().
    void done(int result) override;

signals:
    /// This system cannot play the video here; once, after play(). The dialog is closed.
    void failed();

public slots:
    void on_btnPlay_clicked();
    void on_slPosition_sliderMoved(int position);

private:
    void createPlayer();
    void fail();
    void onFrame();
    void seek(qint64 position);
    void showPosition(qint64 position);
    void showLength(qint64 length);
    void updateButton();

    const QString m_fileName;
    std::unique_ptr<Ui::VideoDialog> m_ui;
    QTimer m_patience; ///< Runs until the first picture.
    bool m_ended = false;
    // Before the widgets, among which is the picture that it paints into.
    std::unique_ptr<QMediaPlayer> m_player;
};

} // namespace velmora
