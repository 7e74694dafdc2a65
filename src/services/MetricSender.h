// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QPair>
#include <QStringList>
#include <QUrl>
#include <QVector>

#include <mutex>

class QNetworkAccessManager;
class QNetworkReply;

namespace velmora
{

/// Collects usage events and sends them in batches as the query of an HTTP GET. Sending is off
/// until an address is set and switched on; events recorded while it is off are dropped. Recording
/// is thread-safe; requests are made on the thread that owns the object, which needs an event loop.
class MetricSender : public QObject
{
    Q_OBJECT
public:
    explicit MetricSender(QObject *parent = nullptr);

    /// The program's one sender, owned by the application's thread.
    static MetricSender &instance();

    /// @p common opens every query: program version, anonymous installation identifier. An invalid
    /// @p address switches sending off. A batch goes out once @p batchLimit events are pending.
    void configure(const QUrl &address, const QString &common, int batchLimit, bool enabled);

    void record(const QString &code, int value);
    void record(const QString &code, const QString &value);
    /// Events of one occasion, numbered from 1.
    void recordGroup(const QVector<QPair<QString, QString>> &events);
    QStringList pending() const;
    /// Sends what is pending, whatever the batch limit, and waits for the answer, at most
    /// @p timeoutMs; then lets go of the network. A process that uses instance() calls this before
    /// its application object goes. Only on the thread that owns the object.
    void flush(int timeoutMs);

public slots:
    /// Sends all pending events in one request, unless one is in flight.
    void SendData();

signals:
    void idle(); ///< A request ended and nothing is pending.

private:
    void queue(const QStringList &events);
    void scheduleSend();
    void onFinished(QNetworkReply *reply);
    void dropNetwork();

    mutable std::mutex m_mutex; ///< Guards all that follows.
    QStringList m_pending;
    QUrl m_address;
    QString m_common;
    int m_batchLimit = 10;
    bool m_enabled = false;
    QNetworkReply *m_reply = nullptr;
    QNetworkAccessManager *m_network = nullptr; ///< Made with the first request.
};

} // namespace velmora
