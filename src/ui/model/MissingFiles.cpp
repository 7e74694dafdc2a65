// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/model/MissingFiles.h"

#include <QFileInfo>
#include <QThread>

#include <utility>

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
            m_found.insert(file, QFileInfo(file).lastModified());
        }
    }));
    connect(m_thread.get(), &QThread::finished, this, &MissingFiles::end);
    m_thread->start(QThread::LowPriority);
}

void MissingFiles::end()
{
    m_thread->wait();
    m_thread.release()->deleteLater(); // its signal led here
    if (m_again)
        start();
    else
        take(std::exchange(m_found, {}));
}

void MissingFiles::take(const Times &times)
{
    QStringList written;
    bool isChanged = false;
    for (auto file = times.begin(); file != times.end(); ++file) {
        const bool isKnown = m_times.contains(file.key());
        const bool isGone = !file->isValid();
        isChanged |= isGone != isMissing(file.key());
        if (isKnown && !isGone && *file != m_times.value(file.key()))
            written.append(file.key());
        m_times.insert(file.key(), *file);
    }
    if (!written.isEmpty())
        emit touched(written);
    if (isChanged)
        emit changed();
}

bool MissingFiles::isMissing(const QString &file) const
{
    const auto time = m_times.constFind(file);
    return time != m_times.cend() && !time->isValid();
}

} // namespace velmora
