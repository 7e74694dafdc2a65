// SPDX-License-Identifier: GPL-3.0-or-later
// What the player looks like, and the mouse.
#include "chrome/BalancedText.h"
#include "chrome/Theme.h"
#include "ui/preview/Spinner.h"
#include "ui/preview/VideoPlayer.h"

#include <QMouseEvent>
#include <QPainter>

namespace velmora
{

void VideoPlayer::setEmptyText(const QString &text)
{
    m_emptyText = text;
    update();
}

void VideoPlayer::resizeEvent(QResizeEvent *)
{
    m_spinner->move(rect().center() - m_spinner->rect().center());
    emit resized();
}

void VideoPlayer::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && rect().contains(event->pos()))
        emit clicked();
}

void VideoPlayer::enterEvent(QEvent *event)
{
    m_hovered = true;
    update();
    QWidget::enterEvent(event);
}

void VideoPlayer::leaveEvent(QEvent *event)
{
    m_hovered = false;
    update();
    QWidget::leaveEvent(event);
}

void VideoPlayer::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    // Black would be taken for bars in the video, but on a whole screen it is what one expects.
    painter.fillRect(rect(), window()->isFullScreen() ? QColor(Qt::black) : QColor(Theme::Surface));
    if (m_picture.isNull()) {
        paintEmpty(painter);
        return;
    }
    paintPicture(painter);
    if (m_hovered && isStopped() && !m_waiting)
        paintPlaySign(painter);
}

void VideoPlayer::paintPicture(QPainter &painter) const
{
    painter.save();
    // In device pixels, so that pictures of the right size are copied and not scaled.
    const qreal ratio = devicePixelRatioF();
    painter.scale(1 / ratio, 1 / ratio);
    const QSize device = size() * ratio;
    QRect target({0, 0}, m_picture.size().scaled(device, Qt::KeepAspectRatio));
    target.moveTopLeft(
        {(device.width() - target.width()) / 2, (device.height() - target.height()) / 2});
    if (target.size() != m_picture.size())
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(target, m_picture);
    if (hasFocus()) {
        const int width = qRound(2 * ratio);
        const int inset = width / 2;
        QPen pen(QColor(Theme::Accent), width);
        pen.setJoinStyle(Qt::MiterJoin);
        painter.setPen(pen);
        painter.drawRect(target.adjusted(inset, inset, -inset, -inset));
    }
    painter.restore();
}

void VideoPlayer::paintPlaySign(QPainter &painter) const
{
    constexpr int kSide = 56; // px
    constexpr int kIcon = 28; // px
    QRect circle(0, 0, kSide, kSide);
    circle.moveCenter(rect().center());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, 150));
    painter.drawEllipse(circle);
    QRect icon(0, 0, kIcon, kIcon);
    icon.moveCenter(circle.center() + QPoint(1, 0));
    Theme::icon(QStringLiteral("play-white")).paint(&painter, icon);
}

void VideoPlayer::paintEmpty(QPainter &painter) const
{
    constexpr QSize kIcon(104, 60);
    constexpr int kMargin = 16; // px
    constexpr int kGap = 16;    // px
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QColor(Theme::Border));
    painter.setBrush(QColor(hasFocus() ? Theme::AccentFaint : Theme::Window));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), Theme::Radius,
                            Theme::Radius);
    const QRect area = BalancedText::part(painter.fontMetrics(),
                                          rect().adjusted(kMargin, 0, -kMargin, 0), m_emptyText);
    QRect text = painter.boundingRect(area, Qt::AlignCenter | Qt::TextWordWrap, m_emptyText);
    text.translate(0, (kIcon.height() + kGap) / 2);
    QRect icon({0, 0}, kIcon);
    icon.moveCenter({text.center().x(), text.top() - kGap - kIcon.height() / 2});
    Theme::icon(QStringLiteral("photos")).paint(&painter, icon);
    painter.setPen(QColor(Theme::SecondaryText));
    painter.drawText(text, Qt::AlignCenter | Qt::TextWordWrap, m_emptyText);
}

} // namespace velmora
