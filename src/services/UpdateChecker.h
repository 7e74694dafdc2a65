// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/ServicesConfig.h"

#include <QByteArray>
#include <QNetworkAccessManager>
#include <QObject>
#include <QPointer>
#include <QString>

class QNetworkReply;
class QSettings;

namespace velmora
{

/// Asks the update service whether there is a newer version of the program. The configuration key
/// "update/address" names the service; without it nothing is sent. "update/product" and
/// "update/key" are what the service knows the program by. Needs an event loop.
class UpdateChecker : public QObject
{
    Q_OBJECT
public:
    /// Larger answers are no versions. Bytes.
    static constexpr qint64 kMaximumAnswer = 1024;

    /// @p store keeps the anonymous identifier of this installation and must outlive the checker.
    UpdateChecker(const ServicesConfig &services, QSettings &store, QObject *parent = nullptr);

    bool isIdle() const { return m_reply.isNull(); } ///< No request is in flight.

    /// The newer version that @p answer names; empty when it names none.
    static QString newerVersion(const QByteArray &answer, const QString &ownVersion);

public slots:
    /// Sends one request, unless one is in flight or the user has switched update checks off
    /// (the key "autoUpdates" of the store).
    void checkUpdates();
    void complete();

signals:
    /// Once per check, and only when there is a newer version.
    void newVersionAvalible(const QString &newVerion);

private:
    QString request() const;
    void onReadyRead();

    ServicesConfig m_services;
    QSettings &m_store;
    QNetworkAccessManager m_network;
    QPointer<QNetworkReply> m_reply;
};

} // namespace velmora
