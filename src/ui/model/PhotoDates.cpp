// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/model/PhotoDates.h"

#include "project/images/ExifReader.h"

#include <QFileInfo>
#include <QThread>

namespace velmora
{

PhotoDates::PhotoDates(QObject *parent) : QObject(parent) {}

PhotoDates::~PhotoDates()
{
    cancel();
    if (m_thread)
        m_thread->wait();
}

bool PhotoDates::start(const QStringList &files)
{
    if (isRunning())
        return false;
    m_cancelled = false;
    m_dates.clear();
    m_thread.reset(QThread::create([this, files] { read(files); }));
    connect(m_thread.get(), &QThread::finished, this, &PhotoDates::end);
    m_thread->start(QThread::LowPriority);
    return true;
}

void PhotoDates::read(const QStringList &files)
{
    constexpr int kReportEvery = 10; // photos
    int done = 0;
    for (const QString &file : files) {
        if (m_cancelled)
            return;
        const QDateTime taken = ExifReader::read(file).taken;
        m_dates.insert(file, taken.isValid() ? taken : QFileInfo(file).lastModified());
        if (++done % kReportEvery == 0)
            emit progress(done, files.size());
    }
}

void PhotoDates::end()
{
    m_thread->wait();
    m_thread.release()->deleteLater(); // its signal led here
    if (m_cancelled) {
        emit cancelled();
        return;
    }
    const Dates dates = std::move(m_dates);
    emit finished(dates);
}

} // namespace velmora
