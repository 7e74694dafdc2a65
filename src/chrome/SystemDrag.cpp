// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/SystemDrag.h"

#include "platform/WindowDrag.h"

#include <QTimer>
#include <QWidget>
#include <QWindow>

namespace velmora
{

namespace
{

constexpr int kLookInterval = 50; // ms

/// No event tells of the button while the window manager holds the pointer.
void endWithButton(QWindow &window)
{
    auto *timer = new QTimer(&window);
    QObject::connect(timer, &QTimer::timeout, &window, [timer, &window] {
        if (WindowDrag::isButtonHeld())
            return;
        WindowDrag::end(window);
        timer->stop();
        timer->deleteLater();
    });
    timer->start(kLookInterval);
}

template <typename Start> bool begin(QWidget &widget, Start start)
{
    QWindow *window = widget.windowHandle();
    if (!window || !WindowDrag::isButtonHeld() || !start(*window))
        return false;
    endWithButton(*window);
    return true;
}

} // namespace

bool SystemDrag::move(QWidget &window)
{
    return begin(window, [](QWindow &handle) { return handle.startSystemMove(); });
}

bool SystemDrag::resize(QWidget &window, Qt::Edges edges)
{
    return begin(window, [edges](QWindow &handle) { return handle.startSystemResize(edges); });
}

} // namespace velmora
