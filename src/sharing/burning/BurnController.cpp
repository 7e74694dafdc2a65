// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/burning/BurnController.h"

#include "services/MetricSender.h"
#include "sharing/SharingLog.h"
#include "sharing/burning/WriteThread.h"

#include <QtConcurrent>

namespace velmora
{

namespace
{

QVector<BurnDevice> search(const std::shared_ptr<DiscWriter> &writer)
{
    QVector<BurnDevice> devices;
    const QVector<DiscRecorder> recorders = writer->recorders();
    for (const DiscRecorder &recorder : recorders)
        devices.append({recorder, writer->media(recorder.id)});
    return devices;
}

QString minutesAndSeconds(qint64 milliseconds)
{
    const qint64 seconds = milliseconds / 1000;
    return QStringLiteral("%1:%2")
        .arg(seconds / 60, 2, 10, QLatin1Char('0'))
        .arg(seconds % 60, 2, 10, QLatin1Char('0'));
}

} // namespace

BurnController::BurnController(std::unique_ptr<DiscWriter> writer, QObject *parent)
    : QObject(parent), m_writer(std::move(writer))
{
    m_timer.setInterval(1000);
    connect(&m_timer, &QTimer::timeout, this,
            [this] { emit elapsedTime(minutesAndSeconds(m_elapsed.elapsed())); });
    connect(&m_search, &QFutureWatcher<QVector<BurnDevice>>::finished, this, [this] {
        m_devices = m_search.result();
        emit devicesChanged();
    });
    connect(&m_check, &QFutureWatcher<DiscMedia>::finished, this, [this] {
        const DiscMedia media = m_check.result();
        if (m_checked >= 0 && m_checked < m_devices.size())
            m_devices[m_checked].media = media;
        emit mediaChecked(media);
    });
}

BurnController::~BurnController()
{
    delete m_thread; // Waits.
}

void BurnController::findDevices()
{
    if (!m_search.isRunning())
        m_search.setFuture(QtConcurrent::run(search, m_writer));
}

void BurnController::checkMedia(int index)
{
    if (m_check.isRunning() || index < 0 || index >= m_devices.size())
        return;
    m_checked = index;
    const QString id = m_devices.at(index).recorder.id;
    m_check.setFuture(QtConcurrent::run([writer = m_writer, id] { return writer->media(id); }));
}

void BurnController::burn(const BurnJob &job)
{
    if (m_thread)
        return;
    m_percent = -1;
    m_thread = new WriteThread(*m_writer, job, this);
    connect(m_thread, &WriteThread::progress, this, &BurnController::onProgress);
    connect(m_thread, &WriteThread::finished, this, &BurnController::onThreadFinished);
    m_elapsed.restart();
    m_timer.start();
    emit elapsedTime(minutesAndSeconds(0));
    m_thread->start();
    qCInfo(lcSharing) << "Burn started";
}

void BurnController::cancel()
{
    if (m_thread)
        m_thread->cancel();
}

void BurnController::onProgress(int current, int total)
{
    const int percent = total > 0 ? qBound(0, static_cast<int>(100LL * current / total), 100) : 0;
    if (percent != m_percent)
        emit burnProgress(percent);
    m_percent = percent;
}

void BurnController::onThreadFinished()
{
    m_timer.stop();
    const bool succeeded = m_thread->succeeded();
    m_thread->deleteLater();
    m_thread = nullptr;
    MetricSender::instance().record(QStringLiteral("wdvd"), succeeded ? 1 : 0);
    if (!succeeded)
        MetricSender::instance().record(QStringLiteral("err3"), QStringLiteral("wdvd"));
    emit burnFinished(succeeded);
}

} // namespace velmora
