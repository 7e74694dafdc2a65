// SPDX-License-Identifier: GPL-3.0-or-later
#include "services/MetricSender.h"

#include "services/ServicesLog.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QTimer>

namespace velmora
{

namespace
{

constexpr int kMaximumPending = 1000;   // events; the oldest go first when a service hangs
constexpr int kTransferTimeout = 30000; // ms

QString encoded(const QString &value)
{
    return QString::fromLatin1(QUrl::toPercentEncoding(value));
}

} // namespace

MetricSender::MetricSender(QObject *parent) : QObject(parent) {}

MetricSender &MetricSender::instance()
{
    static MetricSender sender;
    // The first caller may be a worker thread, which has no lasting event loop.
    static const bool moved = [] {
        if (QCoreApplication *const application = QCoreApplication::instance())
            sender.moveToThread(application->thread());
        return true;
    }();
    Q_UNUSED(moved)
    return sender;
}

void MetricSender::configure(const QUrl &address, const QString &common, int batchLimit,
                             bool enabled)
{
    const std::lock_guard<std::mutex> locker(m_mutex);
    m_address = address;
    m_common = common;
    m_batchLimit = qMax(1, batchLimit);
    m_enabled = enabled && address.isValid() && !address.host().isEmpty();
    if (!m_enabled)
        m_pending.clear();
}

void MetricSender::record(const QString &code, int value)
{
    record(code, QString::number(value));
}

void MetricSender::record(const QString &code, const QString &value)
{
    queue({QStringLiteral("&m1=%1:%2").arg(encoded(code), encoded(value))});
}

void MetricSender::recordGroup(const QVector<QPair<QString, QString>> &events)
{
    QStringList texts;
    for (const auto &event : events)
        texts.append(QStringLiteral("&m%1=%2:%3")
                         .arg(QString::number(texts.size() + 1), encoded(event.first),
                              encoded(event.second)));
    queue(texts);
}

QStringList MetricSender::pending() const
{
    const std::lock_guard<std::mutex> locker(m_mutex);
    return m_pending;
}

void MetricSender::queue(const QStringList &events)
{
    const std::lock_guard<std::mutex> locker(m_mutex);
    if (!m_enabled)
        return;
    m_pending.append(events);
    if (m_pending.size() > kMaximumPending)
        m_pending = m_pending.mid(m_pending.size() - kMaximumPending);
    if (m_pending.size() >= m_batchLimit && !m_reply)
        scheduleSend();
}

// Goes through this object's event loop, since the caller may be any thread, even one without
// timers of its own.
void MetricSender::scheduleSend()
{
    QMetaObject::invokeMethod(
        this, [this] { QTimer::singleShot(0, this, &MetricSender::SendData); },
        Qt::QueuedConnection);
}

void MetricSender::SendData()
{
    const std::lock_guard<std::mutex> locker(m_mutex);
    if (m_reply || m_pending.isEmpty() || !m_enabled)
        return;
    if (!m_network)
        m_network = new QNetworkAccessManager(this);
    QUrl url = m_address;
    url.setPath(QStringLiteral("/"));
    url.setQuery(m_common + m_pending.join(QString()));
    m_pending.clear();
    qCInfo(lcServices).noquote() << "Analytics:" << url.toString(QUrl::FullyEncoded);

    QNetworkRequest request(url);
    request.setTransferTimeout(kTransferTimeout);
    QNetworkReply *const reply = m_network->get(request);
    m_reply = reply;
    connect(reply, &QNetworkReply::finished, this, [this, reply] { onFinished(reply); });
}

void MetricSender::onFinished(QNetworkReply *reply)
{
    if (reply->error() == QNetworkReply::NoError)
        qCInfo(lcServices) << "Send analitics [OK]";
    else
        qCWarning(lcServices).noquote()
            << QStringLiteral("Send analitics failed: %1").arg(reply->errorString());
    reply->deleteLater();
    bool done = false;
    {
        const std::lock_guard<std::mutex> locker(m_mutex);
        m_reply = nullptr;
        done = m_pending.isEmpty();
    }
    if (done)
        emit idle();
    else
        scheduleSend();
}

void MetricSender::flush(int timeoutMs)
{
    QEventLoop loop;
    connect(this, &MetricSender::idle, &loop, &QEventLoop::quit);
    QTimer::singleShot(timeoutMs, &loop, &QEventLoop::quit);
    SendData();
    const bool busy = [this] {
        const std::lock_guard<std::mutex> locker(m_mutex);
        return m_reply != nullptr;
    }();
    if (busy)
        loop.exec();
    dropNetwork();
}

// The global sender outlives the application object, which networking must not.
void MetricSender::dropNetwork()
{
    const std::lock_guard<std::mutex> locker(m_mutex);
    if (m_reply)
        m_reply->disconnect(this);
    m_reply = nullptr;
    delete m_network;
    m_network = nullptr;
}

} // namespace velmora
