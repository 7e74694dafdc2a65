// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/upload/signin/SignIn.h"

#include "sharing/upload/ServiceSetup.h"
#include "sharing/upload/signin/LoopbackReplyHandler.h"

#include <QCryptographicHash>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QOAuth2AuthorizationCodeFlow>
#include <QRandomGenerator>
#include <QUrlQuery>

namespace velmora
{

namespace
{

constexpr auto kUrlSafe = QByteArray::Base64UrlEncoding | QByteArray::OmitTrailingEquals;

/// 43 letters that nobody can guess.
QByteArray randomText()
{
    QByteArray bytes(32, '\0');
    auto *words = reinterpret_cast<quint32 *>(bytes.data());
    QRandomGenerator::system()->fillRange(words, bytes.size() / 4);
    return bytes.toBase64(kUrlSafe);
}

void encode(QVariantMap &parameters, const QString &key)
{
    // The flow writes values as they are, so that "+" and "&" would change their meaning.
    if (parameters.contains(key))
        parameters.insert(key, queryValue(parameters.value(key).toString()));
}

void addChallenge(QVariantMap &parameters, const QByteArray &verifier)
{
    const QByteArray hash = QCryptographicHash::hash(verifier, QCryptographicHash::Sha256);
    parameters.insert(QStringLiteral("code_challenge"),
                      QString::fromLatin1(hash.toBase64(kUrlSafe)));
    parameters.insert(QStringLiteral("code_challenge_method"), QStringLiteral("S256"));
    for (const char *key : {"client_id", "redirect_uri", "scope", "state"})
        encode(parameters, QLatin1String(key));
}

// What the address has already is not written a second time.
void removeWritten(QVariantMap &parameters, const QUrl &address)
{
    const auto written = QUrlQuery(address).queryItems();
    for (const auto &item : written)
        parameters.remove(item.first);
}

} // namespace

SignIn::SignIn(const ServiceSetup &setup, QNetworkAccessManager *network,
               std::unique_ptr<LoopbackReplyHandler> handler, QObject *parent)
    : QObject(parent), m_network(network), m_handler(std::move(handler)),
      m_flow(new QOAuth2AuthorizationCodeFlow(network, this))
{
    // Before the flow connects, which then asks for the token's parameters.
    connect(m_handler.get(), &QAbstractOAuthReplyHandler::callbackReceived, this,
            [this](const QVariantMap &values) {
                m_code = values.value(QStringLiteral("code")).toString();
                m_exchanging = true;
            });
    const auto exchanged = [this] { m_exchanging = false; };
    connect(m_handler.get(), &QAbstractOAuthReplyHandler::tokensReceived, this, exchanged);
    connect(m_handler.get(), &LoopbackReplyHandler::tokensRefused, this, exchanged);
    configure(setup);
    connect(m_flow, &QAbstractOAuth::authorizeWithBrowser, this,
            [this, written = setup.authorizationUrl.query(QUrl::FullyEncoded)](QUrl address) {
                // The flow replaces a query that the address has already.
                if (!written.isEmpty())
                    address.setQuery(written + QLatin1Char('&') +
                                     address.query(QUrl::FullyEncoded));
                emit openPage(address);
            });
    connect(m_flow, &QAbstractOAuth::granted, this,
            [this] { emit granted(m_flow->token(), m_flow->refreshToken()); });
    connect(m_flow, &QAbstractOAuth2::error, this, &SignIn::failed);
    connect(m_handler.get(), &LoopbackReplyHandler::denied, this, &SignIn::failed);
    connect(m_handler.get(), &LoopbackReplyHandler::tokensRefused, this, &SignIn::failed);
}

SignIn::~SignIn()
{
    if (!m_exchanging)
        return;
    // The flow's request would go to the handler even after its end.
    const auto replies = m_network->findChildren<QNetworkReply *>();
    for (QNetworkReply *reply : replies) {
        reply->disconnect();
        reply->abort();
        reply->deleteLater();
    }
}

void SignIn::configure(const ServiceSetup &setup)
{
    const QByteArray verifier = randomText();
    const QString state = QString::fromLatin1(randomText());
    m_handler->setState(state);
    m_flow->setReplyHandler(m_handler.get());
    m_flow->setAuthorizationUrl(setup.authorizationUrl);
    m_flow->setAccessTokenUrl(setup.tokenUrl);
    m_flow->setClientIdentifier(setup.clientId);
    m_flow->setClientIdentifierSharedKey(setup.clientSecret);
    m_flow->setScope(setup.scope);
    m_flow->setState(state);
    m_flow->setModifyParametersFunction(
        [this, verifier, setup](QAbstractOAuth::Stage stage, QVariantMap *parameters) {
            if (stage == QAbstractOAuth::Stage::RequestingAuthorization) {
                if (setup.scope.isEmpty())
                    parameters->remove(QStringLiteral("scope"));
                addChallenge(*parameters, verifier);
                removeWritten(*parameters, setup.authorizationUrl);
            } else if (stage == QAbstractOAuth::Stage::RequestingAccessToken) {
                *parameters = tokenParameters(setup, QString::fromLatin1(verifier));
            }
        });
}

// All of them anew: which values the flow has encoded depends on its version.
QVariantMap SignIn::tokenParameters(const ServiceSetup &setup, const QString &verifier) const
{
    return {{QStringLiteral("grant_type"), QStringLiteral("authorization_code")},
            {QStringLiteral("code"), queryValue(m_code)},
            {QStringLiteral("redirect_uri"), queryValue(m_handler->callback())},
            {QStringLiteral("client_id"), queryValue(setup.clientId)},
            {QStringLiteral("client_secret"), queryValue(setup.clientSecret)},
            {QStringLiteral("code_verifier"), verifier}};
}

bool SignIn::start()
{
    if (!m_handler->open())
        return false;
    m_flow->grant();
    return true;
}

void SignIn::stop()
{
    m_handler->shut();
    disconnect();
}

void SignIn::acceptCode(const QString &code)
{
    m_handler->acceptCode(code);
}

} // namespace velmora
