// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/preview/Spinner.h"

#include <QPainter>

namespace velmora
{

namespace
{

constexpr int kSide = 48;       // px
constexpr int kInterval = 40;   // ms
constexpr int kHiddenTurns = 6; // steps before it appears
constexpr int kStep = 16;       // degrees
constexpr int kArc = 100;       // degrees
constexpr int kUnitsPerDegree = 16;

} // namespace

Spinner::Spinner(QWidget *parent) : QWidget(parent)
{
    setFixedSize(kSide, kSide);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAccessibleName(tr("Preparing the preview"));
    hide();
    m_timer.setInterval(kInterval);
    connect(&m_timer, &QTimer::timeout, this, &Spinner::onTimer);
}

void Spinner::setTurning(bool turning)
{
    if (turning == m_timer.isActive())
        return;
    m_turns = 0;
    if (turning) {
        m_timer.start();
    } else {
        m_timer.stop();
        hide();
    }
}

void Spinner::onTimer()
{
    if (++m_turns >= kHiddenTurns)
        show();
    update();
}

void Spinner::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, 150));
    painter.drawEllipse(rect());
    const QRect ring = rect().adjusted(12, 12, -12, -12);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(255, 255, 255, 70), 3));
    painter.drawEllipse(ring);
    painter.setPen(QPen(Qt::white, 3, Qt::SolidLine, Qt::RoundCap));
    painter.drawArc(ring, -m_turns * kStep * kUnitsPerDegree, kArc * kUnitsPerDegree);
}

} // namespace velmora
