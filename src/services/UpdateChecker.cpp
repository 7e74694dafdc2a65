// SPDX-License-Identifier: GPL-3.0-or-later
#include "services/UpdateChecker.h"

#include "app/Identity.h"
#include "services/InstallationId.h"
#include "services/ProgramVersion.h"
#include "services/ServicesLog.h"

#include <QCryptographicHash>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QSettings>
#include <QUrl>

namespace velmora
{

namespace
{

constexpr int kTimeout = 30000; // ms without any byte

QString encoded(const QString &value)
{
    return QString::fromLatin1(QUrl::toPercentEncoding(value));
}

/// The answer fit for one line of the log.
QString printable(const QByteArray &answer)
{
    return QString::fromUtf8(answer.left(100)).simplified();
}

} // namespace

UpdateChecker::UpdateChecker(const ServicesConfig &services, QSettings &store, QObject *parent)
    : QObject(parent), m_services(services), m_store(store)
{
    m_network.setTransferTimeout(kTimeout);
    m_network.setRedirectPolicy(QNetworkRequest::NoLessSafeRedirectPolicy);
}

QString UpdateChecker::request() const
{
    const QString version = programVersion();
    const QString product = m_services.value(QStringLiteral("update/product"));
    const QString machine = installationId(m_store);
    const QString sum =
        version + product + machine + m_services.value(QStringLiteral("update/key"));
    const QByteArray digest =
        QCryptographicHash::hash(sum.toUtf8(), QCryptographicHash::Md5).toHex();
    return QStringLiteral("%1?ver=%2&pid=%3&mh=%4&h=%5")
        .arg(m_services.value(QStringLiteral("update/address")), encoded(version), encoded(product),
             encoded(machine), QString::fromLatin1(digest));
}

void UpdateChecker::checkUpdates()
{
    const QUrl address(m_services.value(QStringLiteral("update/address")));
    const bool web =
        address.scheme() == QLatin1String("https") || address.scheme() == QLatin1String("http");
    const bool wanted = m_store.value(QStringLiteral("autoUpdates"), true).toBool();
    if (m_reply || !wanted || !address.isValid() || !web || address.host().isEmpty())
        return;
    const QString url = request();
    qCInfo(lcServices).noquote() << QStringLiteral("Request url:'%1'").arg(url);
    m_reply = m_network.get(QNetworkRequest(QUrl(url)));
    connect(m_reply, &QNetworkReply::readyRead, this, &UpdateChecker::onReadyRead);
    connect(m_reply, &QNetworkReply::finished, this, &UpdateChecker::complete);
}

/// An answer that goes on and on is cut off.
void UpdateChecker::onReadyRead()
{
    if (m_reply && m_reply->bytesAvailable() > kMaximumAnswer)
        m_reply->abort();
}

void UpdateChecker::complete()
{
    if (!m_reply)
        return;
    QNetworkReply *reply = m_reply;
    m_reply = nullptr;
    reply->deleteLater();
    if (reply->error() != QNetworkReply::NoError)
        return;
    const QByteArray answer = reply->readAll();
    qCInfo(lcServices).noquote() << QStringLiteral("Update response:'%1'").arg(printable(answer));
    const QString version = newerVersion(answer, programVersion());
    if (version.isEmpty())
        return;
    qCInfo(lcServices).noquote() << QStringLiteral("Has new version:'%1'").arg(version);
    emit newVersionAvalible(version);
}

QString UpdateChecker::newerVersion(const QByteArray &answer, const QString &ownVersion)
{
    if (answer.size() > kMaximumAnswer)
        return {};
    const auto offered =
        ProgramVersion::parse(QString::fromUtf8(answer.constData(), answer.size()));
    const auto own = ProgramVersion::parse(ownVersion);
    return offered && own && *own < *offered ? offered->toString() : QString();
}

} // namespace velmora
