// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/preview/FrameBuffer.h"
#include "ui/preview/FrameSource.h"

#include <QTimer>
#include <QWidget>

#include <array>
#include <functional>
#include <memory>

namespace velmora
{

class Spinner;

/// Plays a script: a ring of three buffers, each with the frames of one slide, is filled by a frame
/// source up to two slides ahead and shown on a clock that follows wall time. Stopped, playing or
/// paused; a spinner turns while the picture that should be seen is still being made.
///
/// A buffer's times are all there from its filling on; its pictures come one by one and leave as
/// they are shown. The clock waits for the first few of a buffer, and for a few more whenever it
/// comes to one that is not there yet. Positions in ms from the preview's start. GUI thread.
class VideoPlayer : public QWidget
{
    Q_OBJECT
public:
    /// Wall time in ms.
    using Clock = std::function<qint64()>;
    static constexpr int kBuffers = 3;

    /// With a PreviewRenderer.
    explicit VideoPlayer(QWidget *parent = nullptr);
    VideoPlayer(std::unique_ptr<FrameSource> source, Clock clock, QWidget *parent = nullptr);
    ~VideoPlayer() override;

    /// Shows another script at @p position; null: nothing. Whether it plays stays as it is.
    void setScript(const PreviewScript::Pointer &script, double position = 0);
    const PreviewScript::Pointer &script() const { return m_script; }
    /// Starts or resumes; from the start after the end.
    void play();
    /// Keeps the position; when stopped, the clock starts without advancing.
    void pause();
    void stop();
    void setPosition(double position);

    bool isStopped() const { return !m_timer.isActive(); }
    bool isPaused() const { return !isStopped() && m_paused; }
    double position() const { return m_position; }
    double totalDuration() const;

    /// The largest size in device pixels that shows frames in the proportions of @p video.
    QSize frameSize(const QSize &video) const;
    /// Shown where there is no script.
    void setEmptyText(const QString &text);
    /// Turns the spinner for a reason outside of the player.
    void setWaiting(bool waiting);

    const QImage &picture() const { return m_picture; } ///< What is shown.
    int currentBuffer() const { return m_current; }
    const FrameBuffer &buffer(int index) const { return m_ring.at(static_cast<size_t>(index)); }
    /// Frames that the clock passed without showing them.
    int droppedFrames() const { return m_dropped; }

    QSize sizeHint() const override { return {328, 185}; }
    QSize minimumSizeHint() const override { return {160, 90}; }

signals:
    void positionChanged(double position);
    void stopped();           ///< The end was reached, or stop().
    void started();           ///< The clock begins to advance.
    void generatingStarted(); ///< The clock waits for frames; at most once until finished.
    void generatingFinished();
    void clicked();
    void resized();

public slots:
    void onFrameGenerated(int buffId, int itemIndex, int frame, const QImage &pixmap);
    void onTimer();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    FrameBuffer &current() { return m_ring.at(static_cast<size_t>(m_current)); }
    void restart();
    void fillBuffer(int buffId, int slide, int firstFrame);
    void clearBuffer(FrameBuffer &buffer);
    void runClock();
    double takeElapsed();
    void findFrame();
    void showFrame(int frame);
    void take(FrameBuffer::Frame &frame);
    void moveToNextBuffer();
    void updateSpinner();
    void paintPicture(QPainter &painter) const;
    void paintPlaySign(QPainter &painter) const;
    void paintEmpty(QPainter &painter) const;

    const std::unique_ptr<FrameSource> m_source;
    const Clock m_clock;
    PreviewScript::Pointer m_script;
    std::array<FrameBuffer, kBuffers> m_ring;
    int m_current = 0;
    int m_wanted = -1;      ///< The frame of the current buffer that belongs to the position.
    bool m_pending = false; ///< It is not there yet.
    double m_position = 0;
    bool m_paused = false;
    bool m_generating = false;
    bool m_waiting = false;
    bool m_hovered = false;
    qint64 m_lastTick = 0;
    int m_dropped = 0;
    QTimer m_timer;
    QImage m_picture;
    QString m_emptyText;
    Spinner *m_spinner;
};

} // namespace velmora
