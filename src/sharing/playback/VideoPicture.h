// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QSize>
#include <QWidget>

class QAbstractVideoSurface;

namespace velmora
{

/// Shows the frames of a player, whole and in their shape. Painted like every other widget, which
/// also works in translucent windows and without a display. GUI thread.
class VideoPicture : public QWidget
{
    Q_OBJECT
public:
    explicit VideoPicture(QWidget *parent = nullptr);

    /// Where the player puts its frames; it must let go of it before the widget ends.
    QAbstractVideoSurface *surface() const;
    /// The last frame; null as long as none came.
    const QImage &frame() const { return m_frame; }
    QSize sizeHint() const override { return m_hint; }

signals:
    /// With each frame.
    void frameShown();
    void clicked();

protected:
    void paintEvent(QPaintEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    class Surface;

    void setFrame(const QImage &frame, const QSize &shape);

    Surface *m_surface;
    QImage m_frame;
    QSize m_shape; ///< How large the frame is meant to look, which its pixels need not tell.
    QSize m_hint;
};

} // namespace velmora
