// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSlider>

namespace velmora
{

/// A slider whose handle comes to where the mouse is pressed and is dragged on from there. Moves by
/// keys and wheel emit sliderMoved() as well. GUI thread.
class SeekSlider : public QSlider
{
    Q_OBJECT
public:
    explicit SeekSlider(QWidget *parent = nullptr);

protected:
    void mousePressEvent(QMouseEvent *event) override;

private:
    int valueAt(const QPoint &point) const;
};

} // namespace velmora
