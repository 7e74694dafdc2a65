// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFrame>
#include <QPoint>

class QHBoxLayout;
class QLabel;
class QToolButton;

namespace velmora
{

/// The title bar that frameless windows draw themselves: icon, title and buttons of the window that
/// it lies in. Dragging it moves the window through the window system, a double click maximises or
/// restores it. Title, icon and state follow the window by themselves. GUI thread.
class TitleBar : public QFrame
{
    Q_OBJECT
public:
    enum class Buttons { All, CloseOnly };

    /// @p parent is a child of the window, or the window itself.
    explicit TitleBar(Buttons buttons, QWidget *parent);

    /// Adds a widget between title and buttons, such as a menu; takes ownership.
    void addWidget(QWidget *widget);
    /// As it is shown: a long name is cut in the middle.
    QString title() const;

    static constexpr int Height = 40; ///< px

signals:
    void minimiseRequested();
    void maximiseRequested(); ///< To be maximised, or restored where it is maximised.
    void closeRequested();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    QToolButton *addButton(const char *name, const QString &icon);
    void retranslate();
    void updateIcon();
    void updateTitle();
    void updateState();

    QHBoxLayout *m_layout;
    QLabel *m_icon;
    QLabel *m_title;
    QToolButton *m_minimise = nullptr;
    QToolButton *m_maximise = nullptr;
    QToolButton *m_close = nullptr;
    QPoint m_pressed; ///< On the screen.
    QPoint m_windowStart;
    bool m_dragging = false;
};

} // namespace velmora
