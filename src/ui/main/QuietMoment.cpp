// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/main/QuietMoment.h"

#include <QApplication>
#include <QScopedValueRollback>

namespace velmora
{

QuietMoment::QuietMoment(QObject *parent) : QObject(parent)
{
    m_soon.setSingleShot(true);
    m_soon.setInterval(0);
    connect(&m_soon, &QTimer::timeout, this, &QuietMoment::look);
}

bool QuietMoment::isQuiet() const
{
    return !m_generating && !m_inTask && !QApplication::activeModalWidget();
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
}

} // namespace velmora
