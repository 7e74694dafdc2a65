// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/upload/signin/LoopbackReplyHandler.h"

#include "sharing/SharingLog.h"
#include "sharing/upload/net/HttpAnswer.h"
#include "sharing/upload/wire/TokenAnswer.h"

#include <QNetworkReply>

namespace velmora
{

LoopbackReplyHandler::LoopbackReplyHandler(quint16 port, QObject *parent)
    : QOAuthHttpServerReplyHandler(QHostAddress::LocalHost, 0, parent), m_port(port),
      m_loopback([this](const CallbackRequest &request) { return onRequest(request); })
{
    close(); // The base class cannot be made without listening.
}

bool LoopbackReplyHandler::open()
{
    return m_loopback.listen(m_port);
}

QString LoopbackReplyHandler::callback() const
{
    return QStringLiteral("http://127.0.0.1:%1%2").arg(QString::number(m_port), path());
}

LoopbackServer::Reply LoopbackReplyHandler::onRequest(const CallbackRequest &request)
{
    if (request.path != path())
        return {404, QString()};
    if (m_state.isEmpty() || request.value("state") != m_state) {
        qCInfo(lcSharing) << "A request without the sign-in's state was ignored";
        return {400, m_page.failure()};
    }
    const bool granted = !request.value("code").isEmpty();
    setCallbackText(granted ? m_page.success() : m_page.failure());
    // A browser may ask for the page again, and a code is good for one exchange only.
    if (!m_decided) {
        m_decided = true;
        // Later, since a dialog that tells the user of it would hold up the browser's answer.
        QMetaObject::invokeMethod(
            this, [this, granted, values = request.values] { tell(granted, values); },
            Qt::QueuedConnection);
    }
    return {200, callbackText()};
}

void LoopbackReplyHandler::tell(bool granted, const QVariantMap &values)
{
    if (granted)
        emit callbackReceived(values);
    else
        emit denied();
}

void LoopbackReplyHandler::acceptCode(const QString &code)
{
    if (m_decided || code.isEmpty())
        return;
    m_decided = true;
    emit callbackReceived({{QStringLiteral("code"), code}, {QStringLiteral("state"), m_state}});
}

void LoopbackReplyHandler::networkReplyFinished(QNetworkReply *reply)
{
    reply->deleteLater();
    const HttpAnswer answer = HttpAnswer::of(*reply);
    TokenAnswer tokens;
    if (answer.error != QNetworkReply::NoError || !answer.isSuccess())
        tokens.problem =
            QStringLiteral("QOAuthOobReplyHandler::networkReplyFinished: ") + answer.errorString;
    else
        tokens = TokenAnswer::parse(answer.contentType, answer.body);
    if (!tokens.accessToken().isEmpty()) {
        emit tokensReceived(tokens.values);
        return;
    }
    if (!tokens.problem.isEmpty())
        qCWarning(lcSharing).noquote() << tokens.problem;
    emit tokensRefused();
}

} // namespace velmora
