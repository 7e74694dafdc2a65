// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/caption/CaptionPreview.h"

#include "chrome/Theme.h"

#include <QPainter>
#include <QStyle>

namespace velmora
{

namespace
{

constexpr QSize kUsualFrame(16, 9);
constexpr QSize kUsualSize(480, 270); // px
constexpr QSize kLeastSize(240, 100); // px

} // namespace

CaptionPreview::CaptionPreview(QWidget *parent) : QWidget(parent)
{
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    m_request.video.size = kUsualFrame;
    connect(&m_maker, &CaptionPictureMaker::pictureReady, this, &CaptionPreview::onPictureReady);
}

void CaptionPreview::setSubject(const CaptionPictureRequest &request)
{
    const QSize frame = m_request.video.size;
    m_request = request;
    if (m_request.video.size.isEmpty())
        m_request.video.size = kUsualFrame;
    m_isClear = false;
    if (frame != m_request.video.size)
        updateGeometry();
    ask(request.play);
}

void CaptionPreview::clear()
{
    m_isClear = true;
    m_picture = QImage();
    m_error.clear();
    m_maker.clear();
    update();
}

void CaptionPreview::ask(bool play)
{
    CaptionPictureRequest request = m_request;
    request.size = pictureRect().size() * devicePixelRatioF();
    request.play = play;
    if (!m_isClear && !request.size.isEmpty())
        m_maker.request(request);
}

void CaptionPreview::onPictureReady(const QImage &picture, const QString &error)
{
    if (m_isClear)
        return; // made before
    m_picture = picture;
    m_picture.setDevicePixelRatio(devicePixelRatioF());
    m_error = error;
    setAccessibleDescription(error);
    update();
    emit pictureChanged();
}

QRect CaptionPreview::pictureRect() const
{
    const QSize size = m_request.video.size.scaled(this->size(), Qt::KeepAspectRatio);
    return QStyle::alignedRect(layoutDirection(), Qt::AlignTop | Qt::AlignHCenter, size, rect());
}

int CaptionPreview::heightForWidth(int width) const
{
    return width * m_request.video.size.height() / m_request.video.size.width();
}

QSize CaptionPreview::sizeHint() const
{
    return {kUsualSize.width(), heightForWidth(kUsualSize.width())};
}

QSize CaptionPreview::minimumSizeHint() const
{
    return kLeastSize;
}

void CaptionPreview::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    ask(false);
}

void CaptionPreview::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QRect area = pictureRect();
    if (!m_picture.isNull()) {
        painter.drawImage(area, m_picture);
        return;
    }
    painter.fillRect(area, QColor(Theme::Border));
    if (m_error.isEmpty())
        return;
    constexpr int kIcon = 40; // px
    constexpr int kGap = 16;  // px
    const QRect icon = QStyle::alignedRect(layoutDirection(), Qt::AlignCenter, {kIcon, kIcon},
                                           area.adjusted(0, 0, 0, -kIcon));
    Theme::icon(QStringLiteral("missing")).paint(&painter, icon);
    painter.setPen(QColor(Theme::Text));
    painter.drawText(QRect(area.left() + kGap, icon.bottom() + kGap / 2, area.width() - 2 * kGap,
                           area.bottom() - icon.bottom()),
                     Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, m_error);
}

} // namespace velmora
