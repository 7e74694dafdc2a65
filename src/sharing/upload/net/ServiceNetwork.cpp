// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/upload/net/ServiceNetwork.h"

#include "sharing/SharingLog.h"
#include "sharing/upload/net/ReplyGuard.h"

#include <QNetworkReply>
#include <QNetworkRequest>
#include <QSslConfiguration>

namespace velmora
{

ServiceNetwork::ServiceNetwork(const NetworkOptions &options, QObject *parent)
    : QNetworkAccessManager(parent), m_options(options)
{
    if (options.caFile.isEmpty())
        return;
    m_certificates = QSslCertificate::fromPath(options.caFile, QSsl::Pem,
                                               QSslCertificate::PatternSyntax::FixedString);
    if (m_certificates.isEmpty())
        qCWarning(lcSharing).noquote()
            << QStringLiteral("No certificate in '%1'").arg(options.caFile);
}

QNetworkReply *ServiceNetwork::createRequest(Operation operation, const QNetworkRequest &request,
                                             QIODevice *data)
{
    QNetworkRequest checked(request);
    checked.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::ManualRedirectPolicy);
    checked.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    checked.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    checked.setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
    // A packed answer could unpack to more than the guard would let pass.
    checked.setRawHeader("Accept-Encoding", "identity");
    if (!m_certificates.isEmpty()) {
        QSslConfiguration tls = checked.sslConfiguration();
        tls.addCaCertificates(m_certificates);
        checked.setSslConfiguration(tls);
    }
    QNetworkReply *reply = QNetworkAccessManager::createRequest(operation, checked, data);
    new ReplyGuard(reply, m_options.stallMs); // Lives as the reply's child.
    return reply;
}

} // namespace velmora
