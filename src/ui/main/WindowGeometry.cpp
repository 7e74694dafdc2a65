// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/main/WindowGeometry.h"

#include <QGuiApplication>
#include <QScreen>
#include <QSettings>
#include <QStyle>
#include <QWidget>

namespace velmora
{

namespace
{

const QString &key()
{
    static const QString name = QStringLiteral("geometry");
    return name;
}

} // namespace

void WindowGeometry::restore(QWidget *window, const QSettings &store)
{
    if (window->restoreGeometry(store.value(key()).toByteArray()))
        return;
    constexpr QSize kComfortable(1360, 860);
    constexpr qreal kShare = 0.75; // of a large screen
    const QScreen *screen = QGuiApplication::primaryScreen();
    const QRect available = screen ? screen->availableGeometry() : QRect({}, kComfortable);
    const QSize size =
        kComfortable.expandedTo(available.size() * kShare).boundedTo(available.size());
    window->setGeometry(QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, size, available));
}

void WindowGeometry::save(const QWidget &window, QSettings *store)
{
    store->setValue(key(), window.saveGeometry());
}

} // namespace velmora
