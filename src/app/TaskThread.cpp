// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/TaskThread.h"

#include <QCoreApplication>

namespace velmora
{

TaskThread::TaskThread(QObject *parent) : QObject(parent), m_thread(&TaskThread::run, this)
{
    connect(this, &TaskThread::worked, this, &TaskThread::report, Qt::QueuedConnection);
}

TaskThread::~TaskThread()
{
    stop();
    m_thread.join();
}

void TaskThread::add(Work work)
{
    const std::lock_guard<std::mutex> locker(m_mutex);
    m_waiting.push_back(std::move(work));
    m_wake.notify_one();
}

void TaskThread::finish()
{
    std::unique_lock<std::mutex> locker(m_mutex);
    m_idle.wait(locker, [this] { return m_waiting.empty() && !m_working; });
}

void TaskThread::retire()
{
    connect(this, &TaskThread::ended, this, &QObject::deleteLater);
    connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, this,
            &QObject::deleteLater);
    if (!stop())
        delete this;
}

bool TaskThread::stop()
{
    const std::lock_guard<std::mutex> locker(m_mutex);
    m_stopped = true;
    m_wake.notify_one();
    return m_working;
}

void TaskThread::run()
{
    std::unique_lock<std::mutex> locker(m_mutex);
    const auto hasNews = [this] { return m_stopped || !m_waiting.empty(); };
    for (m_wake.wait(locker, hasNews); !m_stopped; m_wake.wait(locker, hasNews)) {
        Work work = std::move(m_waiting.front());
        m_waiting.pop_front();
        m_working = true;
        locker.unlock();
        Report report = work();
        work = nullptr; // What it holds may take its time to go.
        locker.lock();
        m_working = false;
        m_idle.notify_all();
        m_reports.push_back(std::move(report));
        emit worked();
    }
    locker.unlock();
    emit ended();
}

void TaskThread::report()
{
    Report report;
    {
        const std::lock_guard<std::mutex> locker(m_mutex);
        if (m_stopped)
            return;
        report = std::move(m_reports.front());
        m_reports.pop_front();
    }
    report();
}

} // namespace velmora
