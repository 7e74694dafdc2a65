// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include <memory>

namespace velmora
{

class TitleBar;

/// The frameless top-level window: title bar, resize handles on all edges and corners, drop
/// shadow where the desktop composes windows. Moving and resizing are left to the window system
/// (QWindow::startSystemMove and startSystemResize). GUI thread.
class CorWindow : public QWidget
{
    Q_OBJECT
public:
    explicit CorWindow(QWidget *parent = nullptr);
    ~CorWindow() override;

    /// Takes ownership; replaces the content before.
    void setContent(QWidget *content);
    QWidget *content() const;
    TitleBar *titleBar() const;
    /// Whether the window may have a shadow; it is shown where the desktop blends windows, unless
    /// the window is maximised or in full screen.
    void setShadowsVisible(bool visible);
    /// Switches between full screen, without title bar, and the state before.
    void toggleFullScreen();
    void toggleMaximised();
    /// Shows the window above all others and gives it the focus.
    void bringToFront();
    /// The visible part of the window, without the shadow, in its coordinates.
    QRect frameRect() const;

protected:
    void changeEvent(QEvent *event) override;
    /// Escape leaves the full screen.
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace velmora
