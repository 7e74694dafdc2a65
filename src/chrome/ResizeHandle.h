// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

namespace velmora
{

/// An invisible strip along one edge, or at one corner, of a window; pressing it hands the resizing
/// to the window system. GUI thread.
class ResizeHandle : public QWidget
{
    Q_OBJECT
public:
    static constexpr int Outside = 6; ///< px beyond the frame, as far as the window reaches
    static constexpr int Inside = 4;  ///< px within the frame
    static constexpr int Corner = 14; ///< px of each edge that belong to a corner

    /// @p edges is one edge, or two that meet in a corner.
    ResizeHandle(Qt::Edges edges, QWidget *window);

    Qt::Edges edges() const { return m_edges; }
    /// Places the handle for a window of @p window size whose frame is @p frame.
    void place(const QSize &window, const QRect &frame);

    /// The place of the handle of @p edges.
    static QRect area(Qt::Edges edges, const QSize &window, const QRect &frame);
    static Qt::CursorShape cursorShape(Qt::Edges edges);

protected:
    void mousePressEvent(QMouseEvent *event) override;

private:
    Qt::Edges m_edges;
};

} // namespace velmora
