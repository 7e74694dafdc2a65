// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/CorWindow.h"

#include "chrome/ResizeHandle.h"
#include "chrome/TitleBar.h"
#include "chrome/WindowShadow.h"
#include "platform/DesktopComposition.h"

#include <QEvent>
#include <QFrame>
#include <QKeyEvent>
#include <QPainter>
#include <QStyle>
#include <QVBoxLayout>
#include <QVariant>
#include <QVector>

namespace velmora
{

class CorWindow::Private
{
public:
    explicit Private(CorWindow *window);

    void update();
    bool isFloating() const;
    bool hasShadow() const { return shadowsWanted && composited && isFloating(); }

    CorWindow *q;
    QVBoxLayout *outer;
    QFrame *frame;
    QVBoxLayout *inner;
    TitleBar *titleBar;
    QWidget *content = nullptr;
    QVector<ResizeHandle *> handles;
    bool shadowsWanted = true;
    bool composited = isDesktopComposited();
};

CorWindow::Private::Private(CorWindow *window)
    : q(window), outer(new QVBoxLayout(window)), frame(new QFrame(window)),
      inner(new QVBoxLayout(frame)), titleBar(new TitleBar(TitleBar::Buttons::All, frame))
{
    frame->setObjectName(QStringLiteral("windowFrame"));
    outer->addWidget(frame);
    inner->setSpacing(0);
    inner->addWidget(titleBar);
    const Qt::Edges corners[] = {Qt::LeftEdge,
                                 Qt::RightEdge,
                                 Qt::TopEdge,
                                 Qt::BottomEdge,
                                 Qt::LeftEdge | Qt::TopEdge,
                                 Qt::RightEdge | Qt::TopEdge,
                                 Qt::LeftEdge | Qt::BottomEdge,
                                 Qt::RightEdge | Qt::BottomEdge};
    for (const Qt::Edges edges : corners)
        handles.append(new ResizeHandle(edges, window));
}

bool CorWindow::Private::isFloating() const
{
    return !(q->windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen));
}

/// Brings margins, title bar and handles in line with the state of the window.
void CorWindow::Private::update()
{
    const int margin = hasShadow() ? WindowShadow::Extent : 0;
    const int line = isFloating() ? 1 : 0;
    outer->setContentsMargins(margin, margin, margin, margin);
    inner->setContentsMargins(line, line, line, line);
    titleBar->setVisible(!q->isFullScreen());
    frame->setProperty("floating", isFloating());
    frame->setProperty("rounded", hasShadow());
    frame->style()->unpolish(frame);
    frame->style()->polish(frame);
    outer->activate();
    for (ResizeHandle *handle : handles) {
        handle->place(q->size(), q->frameRect());
        handle->setVisible(isFloating());
        handle->raise();
    }
    q->QWidget::update();
}

CorWindow::CorWindow(QWidget *parent)
    : QWidget(parent, Qt::Window | Qt::FramelessWindowHint | Qt::WindowSystemMenuHint |
                          Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint),
      d(std::make_unique<Private>(this))
{
    setAttribute(Qt::WA_TranslucentBackground, d->composited);
    connect(d->titleBar, &TitleBar::minimiseRequested, this, &QWidget::showMinimized);
    connect(d->titleBar, &TitleBar::maximiseRequested, this, &CorWindow::toggleMaximised);
    connect(d->titleBar, &TitleBar::closeRequested, this, &QWidget::close);
    d->update();
}

CorWindow::~CorWindow() = default;

void CorWindow::setContent(QWidget *content)
{
    delete d->content;
    d->content = content;
    if (content)
        d->inner->addWidget(content, 1);
    d->update();
}

QWidget *CorWindow::content() const
{
    return d->content;
}

TitleBar *CorWindow::titleBar() const
{
    return d->titleBar;
}

void CorWindow::setShadowsVisible(bool visible)
{
    d->shadowsWanted = visible;
    d->update();
}

void CorWindow::toggleFullScreen()
{
    setWindowState(windowState() ^ Qt::WindowFullScreen);
}

void CorWindow::toggleMaximised()
{
    setWindowState(windowState() ^ Qt::WindowMaximized);
}

void CorWindow::bringToFront()
{
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

QRect CorWindow::frameRect() const
{
    return rect().marginsRemoved(d->outer->contentsMargins());
}

void CorWindow::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange)
        d->update();
}

void CorWindow::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape && isFullScreen())
        toggleFullScreen();
    else
        QWidget::keyPressEvent(event);
}

void CorWindow::paintEvent(QPaintEvent *)
{
    if (!d->hasShadow())
        return;
    QPainter painter(this);
    WindowShadow::paint(painter, frameRect());
}

void CorWindow::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    for (ResizeHandle *handle : d->handles)
        handle->place(size(), frameRect());
}

void CorWindow::showEvent(QShowEvent *event)
{
    // Blending may have gone since the window was made; it cannot come without a new window.
    d->composited = testAttribute(Qt::WA_TranslucentBackground) && isDesktopComposited();
    d->update();
    QWidget::showEvent(event);
}

} // namespace velmora
