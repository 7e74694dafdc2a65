// SPDX-License-Identifier: GPL-3.0-or-later
#include "helpers/FakeServices.h"

#include <QDesktopServices>
#include <QEventLoop>
#include <QFile>
#include <QJsonDocument>
#include <QNetworkReply>
#include <QSettings>
#include <QSslConfiguration>
#include <QTcpServer>
#include <QTextStream>

namespace velmora
{

quint16 freePort()
{
    QTcpServer server;
    server.listen(QHostAddress::LocalHost);
    return server.serverPort();
}

FakeServices::FakeServices(bool tls)
{
    QStringList arguments{QStringLiteral(VELMORA_FAKE_SERVICES), QStringLiteral("--config"),
                          m_folder.filePath(QStringLiteral("services.ini"))};
    if (tls)
        arguments.append(QStringLiteral("--tls"));
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.start(QStringLiteral("python3"), arguments);
    while (!m_process.canReadLine()) {
        if (!m_process.waitForReadyRead(30000))
            return;
    }
    const QJsonObject start = QJsonDocument::fromJson(m_process.readLine()).object();
    m_url = start.value(QLatin1String("url")).toString();
    m_caFile = start.value(QLatin1String("ca_file")).toString();
}

FakeServices::~FakeServices()
{
    m_process.closeWriteChannel();
    if (!m_process.waitForFinished(10000)) {
        m_process.kill();
        m_process.waitForFinished();
    }
}

ServicesConfig FakeServices::config(const QHash<QString, QString> &extra) const
{
    const QString name = m_folder.filePath(QStringLiteral("changed.ini"));
    QFile::remove(name);
    QFile::copy(m_folder.filePath(QStringLiteral("services.ini")), name);
    {
        QSettings file(name, QSettings::IniFormat);
        for (const char *service : {"youtube", "googledrive", "dropbox"})
            file.setValue(QLatin1String(service) + QStringLiteral("/port"),
                          QString::number(freePort()));
        file.setValue(QStringLiteral("network/retry_delay"), QStringLiteral("1"));
        for (auto value = extra.begin(); value != extra.end(); ++value)
            file.setValue(value.key(), value.value());
    }
    return ServicesConfig::fromFile(name);
}

QJsonObject FakeServices::exchange(const QString &path, const QByteArray &body)
{
    QNetworkRequest request(QUrl(m_url + path));
    if (!m_caFile.isEmpty()) {
        QSslConfiguration tls = QSslConfiguration::defaultConfiguration();
        tls.addCaCertificates(m_caFile);
        request.setSslConfiguration(tls);
    }
    request.setHeader(QNetworkRequest::ContentTypeHeader, QStringLiteral("application/json"));
    QNetworkReply *reply = body.isNull() ? m_network.get(request) : m_network.post(request, body);
    QEventLoop loop;
    QObject::connect(reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);
    loop.exec();
    reply->deleteLater();
    if (reply->error() != QNetworkReply::NoError)
        qFatal("The fake services do not answer: %s", qPrintable(reply->errorString()));
    return QJsonDocument::fromJson(reply->readAll()).object();
}

QJsonObject FakeServices::control(const QJsonObject &orders)
{
    return exchange(QStringLiteral("/_control"), QJsonDocument(orders).toJson());
}

void FakeServices::reset()
{
    control({{QStringLiteral("reset"), true}, {QStringLiteral("answer"), QStringLiteral("allow")}});
}

void FakeServices::fail(const QString &step, const QString &json, int times)
{
    fail(step, QJsonDocument::fromJson(json.toUtf8()).object(), times);
}

void FakeServices::fail(const QString &step, QJsonObject action, int times)
{
    action.insert(QStringLiteral("times"), times);
    control({{QStringLiteral("fail"), QJsonObject{{step, QJsonArray{action}}}}});
}

QJsonValue FakeServices::log(const char *part)
{
    return exchange(QStringLiteral("/_log")).value(QLatin1String(part));
}

QJsonArray FakeServices::requests()
{
    return log("requests").toArray();
}

QStringList FakeServices::steps()
{
    QStringList steps;
    const QJsonArray all = requests();
    for (const QJsonValue &request : all)
        steps.append(request[QLatin1String("step")].toString());
    return steps;
}

QStringList FakeServices::problems()
{
    return log("problems").toVariant().toStringList();
}

QJsonArray FakeServices::files()
{
    return log("files").toArray();
}

QStringList FakeServices::secrets()
{
    return log("secrets").toVariant().toStringList();
}

ScriptedBrowser::ScriptedBrowser()
{
    QDesktopServices::setUrlHandler(QStringLiteral("http"), this, "open");
    QDesktopServices::setUrlHandler(QStringLiteral("https"), this, "open");
}

ScriptedBrowser::~ScriptedBrowser()
{
    QDesktopServices::unsetUrlHandler(QStringLiteral("http"));
    QDesktopServices::unsetUrlHandler(QStringLiteral("https"));
}

void ScriptedBrowser::open(const QUrl &address)
{
    visited.append(address.toString(QUrl::FullyEncoded));
    if (stops)
        return;
    QNetworkReply *reply = m_network.get(QNetworkRequest(address));
    // The user of a test trusts the fake services.
    reply->ignoreSslErrors();
    connect(reply, &QNetworkReply::finished, this, [this, reply] {
        reply->deleteLater();
        const QUrl next = reply->attribute(QNetworkRequest::RedirectionTargetAttribute).toUrl();
        if (next.isEmpty())
            lastPage = reply->readAll();
        else
            open(reply->url().resolved(next));
    });
}

} // namespace velmora
