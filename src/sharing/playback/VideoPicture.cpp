// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/playback/VideoPicture.h"

#include <QAbstractVideoSurface>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QVideoSurfaceFormat>

namespace velmora
{

namespace
{

const QSize kRoom(960, 540); ///< px, for a picture where the screen has that.
constexpr double kScreenPart = 0.7;

} // namespace

/// Takes frames as pictures; the player converts what it decodes.
class VideoPicture::Surface : public QAbstractVideoSurface
{
public:
    explicit Surface(VideoPicture *picture) : QAbstractVideoSurface(picture), m_picture(*picture) {}

    QList<QVideoFrame::PixelFormat>
    supportedPixelFormats(QAbstractVideoBuffer::HandleType type) const override
    {
        if (type != QAbstractVideoBuffer::NoHandle)
            return {};
        return {QVideoFrame::Format_RGB32, QVideoFrame::Format_ARGB32};
    }

    bool present(const QVideoFrame &frame) override
    {
        const QImage image = frame.image();
        if (image.isNull())
            return false;
        const bool upsideDown =
            surfaceFormat().scanLineDirection() == QVideoSurfaceFormat::BottomToTop;
        m_picture.setFrame(upsideDown ? image.mirrored() : image, surfaceFormat().sizeHint());
        return true;
    }

private:
    VideoPicture &m_picture;
};

VideoPicture::VideoPicture(QWidget *parent)
    : QWidget(parent), m_surface(new Surface(this)), m_hint(kRoom)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
}

QAbstractVideoSurface *VideoPicture::surface() const
{
    return m_surface;
}

void VideoPicture::setFrame(const QImage &frame, const QSize &shape)
{
    m_frame = frame;
    m_shape = shape.isEmpty() ? frame.size() : shape;
    const QSize room = kRoom.boundedTo(screen()->availableSize() * kScreenPart);
    const QSize hint = m_shape.scaled(room, Qt::KeepAspectRatio);
    if (hint != m_hint) {
        m_hint = hint;
        updateGeometry();
    }
    update();
    emit frameShown();
}

void VideoPicture::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), Qt::black);
    if (m_frame.isNull())
        return;
    QRect target({}, m_shape.scaled(size(), Qt::KeepAspectRatio));
    target.moveCenter(rect().center());
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(target, m_frame);
}

void VideoPicture::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && rect().contains(event->pos()))
        emit clicked();
}

} // namespace velmora
