// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/ResizeHandle.h"

#include "chrome/SystemDrag.h"

#include <QMouseEvent>
#include <QPair>

namespace velmora
{

namespace
{

/// First and one past the last coordinate of a strip along one axis of the frame from @p low to
/// @p high. @p lower and @p upper tell which of the two ends the handle touches, @p along whether
/// it lies on an edge of the other axis, so that the corners are longer.
QPair<int, int> span(int low, int high, bool lower, bool upper, bool corner)
{
    using H = ResizeHandle;
    const int inside = corner ? H::Corner : H::Inside;
    if (lower)
        return {low - H::Outside, low + inside};
    if (upper)
        return {high - inside, high + H::Outside};
    return {low + H::Corner, high - H::Corner};
}

} // namespace

ResizeHandle::ResizeHandle(Qt::Edges edges, QWidget *window) : QWidget(window), m_edges(edges)
{
    setObjectName(QStringLiteral("resizeHandle%1").arg(int(edges)));
    setCursor(cursorShape(edges));
    setAttribute(Qt::WA_NoSystemBackground);
}

void ResizeHandle::place(const QSize &window, const QRect &frame)
{
    setGeometry(area(m_edges, window, frame));
    // A corner is an L of which only the outer part should take presses from the content.
    const bool corner =
        cursorShape(m_edges) == Qt::SizeFDiagCursor || cursorShape(m_edges) == Qt::SizeBDiagCursor;
    if (corner)
        setMask(QRegion(rect()) -
                QRegion(frame.adjusted(Inside, Inside, -Inside, -Inside).translated(-pos())));
}

QRect ResizeHandle::area(Qt::Edges edges, const QSize &window, const QRect &frame)
{
    const bool corner = (edges & (Qt::LeftEdge | Qt::RightEdge)) != 0 &&
                        (edges & (Qt::TopEdge | Qt::BottomEdge)) != 0;
    const auto x = span(frame.left(), frame.left() + frame.width(), edges.testFlag(Qt::LeftEdge),
                        edges.testFlag(Qt::RightEdge), corner);
    const auto y = span(frame.top(), frame.top() + frame.height(), edges.testFlag(Qt::TopEdge),
                        edges.testFlag(Qt::BottomEdge), corner);
    const QRect strip(x.first, y.first, x.second - x.first, y.second - y.first);
    return strip.intersected(QRect(QPoint(0, 0), window));
}

Qt::CursorShape ResizeHandle::cursorShape(Qt::Edges edges)
{
    const Qt::Edges horizontal = edges & (Qt::LeftEdge | Qt::RightEdge);
    const Qt::Edges vertical = edges & (Qt::TopEdge | Qt::BottomEdge);
    if (!vertical)
        return Qt::SizeHorCursor;
    if (!horizontal)
        return Qt::SizeVerCursor;
    const bool falling =
        edges == (Qt::LeftEdge | Qt::TopEdge) || edges == (Qt::RightEdge | Qt::BottomEdge);
    return falling ? Qt::SizeFDiagCursor : Qt::SizeBDiagCursor;
}

void ResizeHandle::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        SystemDrag::resize(*window(), m_edges);
}

} // namespace velmora
