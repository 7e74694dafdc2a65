// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/model/MissingFiles.h"

#include <QFileInfo>
#include <QThread>

namespace velmora
{

MissingFiles::MissingFiles(QObject *parent) : QObject(parent) {}

MissingFiles::~MissingFiles()
{
    if (!m_thread)
        return;
    m_thread->requestInterruption();
    m_thread->wait();
}

void MissingFiles::check(const QStringList &files)
{
    m_files = files;
    m_again = m_thread != nullptr;
    if (m_thread)
        m_thread->requestInterruption();
    else
        start();
}

void MissingFiles::start()
{
    m_again = false;
    m_found.clear();
    m_thread.reset(QThread::create([this, files = m_files] {
        for (const QString &file : files) {
            if (QThread::currentThread()->isInterruptionRequested())
                return;
            if (!QFileInfo::exists(file))
                m_found.insert(file);
        }
    }));
    connect(m_thread.get(), &QThread::finished, this, &MissingFiles::end);
    m_thread->start(QThread::LowPriority);
}

void MissingFiles::end()
{
    m_thread->wait();
    m_thread.release()->deleteLater(); // its signal led here
    if (m_again) {
        start();
    } else if (m_found != m_missing) {
        m_missing = m_found;
        emit changed();
    }
}

} // namespace velmora
