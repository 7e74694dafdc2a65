// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QApplication>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QUrl>
#include <QWidget>

namespace velmora
{

/// Drags @p data into @p target and drops it there, as the window system does; false when the
/// target does not take it.
inline bool dropOn(QWidget *target, QMimeData &data, const QPoint &position)
{
    constexpr Qt::DropActions kActions(Qt::CopyAction | Qt::MoveAction);
    QDragEnterEvent enter(position, kActions, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(target, &enter);
    if (!enter.isAccepted())
        return false;
    QDragMoveEvent move(position, kActions, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(target, &move);
    QDropEvent event(position, kActions, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(target, &event);
    return event.isAccepted();
}

/// The same with files.
inline bool dropFilesOn(QWidget *target, const QStringList &files, const QPoint &position)
{
    QList<QUrl> urls;
    for (const QString &file : files)
        urls.append(QUrl::fromLocalFile(file));
    QMimeData data;
    data.setUrls(urls);
    return dropOn(target, data, position);
}

} // namespace velmora
