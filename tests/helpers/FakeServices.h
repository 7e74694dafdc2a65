// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/ServicesConfig.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QNetworkAccessManager>
#include <QProcess>
#include <QTemporaryDir>

namespace velmora
{

/// One of this machine on which nobody listens.
quint16 freePort();

/// The fake upload services of tests/fakes/services in a process of their own.
class FakeServices
{
public:
    explicit FakeServices(bool tls);
    ~FakeServices();

    bool isRunning() const { return !m_url.isEmpty(); }
    QString url() const { return m_url; }
    /// A configuration that leads here, with free ports for the sign-in; @p extra lines of
    /// "section/key" replace its values.
    ServicesConfig config(const QHash<QString, QString> &extra = {}) const;

    /// See control() in tests/fakes/services/server.py.
    QJsonObject control(const QJsonObject &orders);
    void reset();
    /// The next @p times requests of @p step end as @p action says.
    void fail(const QString &step, QJsonObject action, int times = 1);
    void fail(const QString &step, const QString &json, int times = 1);

    QJsonArray requests();  ///< So far, in order.
    QStringList steps();    ///< Their kinds.
    QStringList problems(); ///< What was wrong with them.
    QJsonArray files();     ///< That were uploaded.
    QStringList secrets();  ///< Codes and tokens that were handed out.

private:
    QJsonValue log(const char *part);
    QJsonObject exchange(const QString &path, const QByteArray &body = {});

    QProcess m_process;
    QTemporaryDir m_folder;
    QNetworkAccessManager m_network;
    QString m_url;
    QString m_caFile;
};

/// Stands for the desktop's browser: follows the addresses that the program opens.
class ScriptedBrowser : public QObject
{
    Q_OBJECT
public:
    ScriptedBrowser();
    ~ScriptedBrowser() override;

    bool stops = false; ///< Notes the addresses only.
    QStringList visited;
    QByteArray lastPage;

public slots:
    void open(const QUrl &address);

private:
    QNetworkAccessManager m_network;
};

} // namespace velmora
