// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/burning/BurnController.h"

#include "services/MetricSender.h"
#include "sharing/SharingLog.h"
#include "sharing/burning/WriteThread.h"

namespace velmora
{

namespace
{

QVector<BurnDevice> search(DiscWriter &writer)
{
    QVector<BurnDevice> devices;
    const QVector<DiscRecorder> recorders = writer.recorders();
    for (const DiscRecorder &recorder : recorders)
        devices.append({recorder, writer.media(recorder.id)});
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
    : QObject(parent), m_writer(std::move(writer)), m_questions(new TaskThread)
{
    m_timer.setInterval(1000);
    connect(&m_timer, &QTimer::timeout, this,
            [this] { emit elapsedTime(minutesAndSeconds(m_elapsed.elapsed())); });
}

BurnController::~BurnController()
{
    delete m_thread; // Waits.
    m_questions->retire();
}

void BurnController::findDevices()
{
    if (m_searching)
        return;
    m_searching = true;
    m_questions->add([this, writer = m_writer]() -> TaskThread::Report {
        return [this, devices = search(*writer)] {
            m_searching = false;
            m_devices = devices;
            emit devicesChanged();
        };
    });
}

void BurnController::checkMedia(int index)
{
    if (m_checking || index < 0 || index >= m_devices.size())
        return;
    m_checking = true;
    const QString id = m_devices.at(index).recorder.id;
    m_questions->add([this, writer = m_writer, id, index]() -> TaskThread::Report {
        return [this, index, media = writer->media(id)] {
            m_checking = false;
            if (index < m_devices.size())
                m_devices[index].media = media;
            emit mediaChecked(media);
        };
    });
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
