// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QNetworkAccessManager>
#include <QMutex>
#include <QObject>
#include <QPair>
#include <QStringList>
#include <QUrl>
#include <QVector>

class QNetworkReply;

namespace velmora
{

/// Collects usage events and sends them in batches as the query of an HTTP GET. Sending is off
/// until an address is set and switched on. Recording is thread-safe; requests are made on the
/// thread that owns the object.
class MetricSender : public QObject
{
    Q_OBJECT
public:
    explicit MetricSender(QObject *parent = nullptr);

    /// The program's one sender.
    static MetricSender &instance();

    /// @p common opens every query: program version, anonymous installation identifier.
    void configure(const QUrl &address, const QString &common, int batchLimit, bool enabled);

    void record(const QString &code, int value);
    void record(const QString &code, const QString &value);
    void recordGroup(const QVector<QPair<QString, QString>> &events);
    QStringList pending() const;

public slots:
    void SendData();

private:
    void queue(const QStringList &events);
    void onFinished(QNetworkReply *reply);

    mutable QMutex m_mutex;
    QStringList m_pending;
    QUrl m_address;
    QString m_common;
    int m_batchLimit = 10;
    bool m_enabled = false;
    QNetworkReply *m_reply = nullptr;
    QNetworkAccessManager *m_network;
};

} // namespace velmora
