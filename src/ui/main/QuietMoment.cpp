// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/main/QuietMoment.h"

#include "chrome/QTableViewEx.h"

#include <QApplication>
#include <QScopedValueRollback>

namespace velmora
{

namespace
{

constexpr int kLookAgain = 200; // ms

/// What ends without a word to the window.
bool isHandBusy()
{
    return QTableViewEx::isDragging() || QApplication::activePopupWidget();
}

} // namespace

QuietMoment::QuietMoment(QObject *parent) : QObject(parent)
{
    m_soon.setSingleShot(true);
    connect(&m_soon, &QTimer::timeout, this, &QuietMoment::look);
}

bool QuietMoment::isQuiet() const
{
    return !m_generating && !m_inTask && !QApplication::activeModalWidget() && !isHandBusy();
}

void QuietMoment::run(const Task &task)
{
    m_waiting.append(task);
    look();
}

void QuietMoment::setGenerating(bool generating)
{
    m_generating = generating;
    lookSoon();
}

void QuietMoment::look()
{
    while (isQuiet() && !m_waiting.isEmpty()) {
        const Task task = m_waiting.takeFirst();
        const QScopedValueRollback<bool> inTask(m_inTask, true);
        task();
    }
    if (!m_waiting.isEmpty() && isHandBusy())
        m_soon.start(kLookAgain);
}

} // namespace velmora
