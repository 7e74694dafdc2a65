// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/SeekSlider.h"

#include <QMouseEvent>
#include <QStyle>
#include <QStyleOptionSlider>

namespace velmora
{

SeekSlider::SeekSlider(QWidget *parent) : QSlider(parent)
{
    connect(this, &QSlider::actionTriggered, this, [this](int action) {
        if (action != SliderMove)
            emit sliderMoved(sliderPosition());
    });
}

void SeekSlider::mousePressEvent(QMouseEvent *event)
{
    QStyleOptionSlider option;
    initStyleOption(&option);
    const QRect handle =
        style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this);
    if (event->button() == Qt::LeftButton && !handle.contains(event->pos())) {
        setSliderDown(true);
        setSliderPosition(valueAt(event->pos()));
    }
    QSlider::mousePressEvent(event);
}

int SeekSlider::valueAt(const QPoint &point) const
{
    QStyleOptionSlider option;
    initStyleOption(&option);
    const QRect groove =
        style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderGroove, this);
    const QRect handle =
        style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this);
    return QStyle::sliderValueFromPosition(minimum(), maximum(),
                                           point.x() - groove.x() - handle.width() / 2,
                                           groove.width() - handle.width(), option.upsideDown);
}

} // namespace velmora
