// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/upload/FakeUploader.h"

namespace velmora
{

FakeUploader::FakeUploader(int tickMs, QObject *parent) : BaseUploader(parent)
{
    m_timer.setInterval(tickMs);
    connect(&m_timer, &QTimer::timeout, this, &FakeUploader::doWork);
}

void FakeUploader::startUpload(QString fileName, QString title)
{
    Q_UNUSED(fileName)
    Q_UNUSED(title)
    m_counter = 0;
    m_timer.start();
    emit started();
}

void FakeUploader::doWork()
{
    emit progress(++m_counter);
    if (m_counter < 100)
        return;
    m_timer.stop();
    emit finished(QString(), QString());
}

void FakeUploader::abort()
{
    m_timer.stop();
    emit failed(QString());
}

} // namespace velmora
