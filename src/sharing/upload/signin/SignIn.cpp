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

void addVerifier(QVariantMap &parameters, const QByteArray &verifier, const ServiceSetup &setup)
{
    parameters.insert(QStringLiteral("code_verifier"), QString::fromLatin1(verifier));
    parameters.insert(QStringLiteral("client_id"), queryValue(setup.clientId));
    parameters.insert(QStringLiteral("client_secret"), queryValue(setup.clientSecret));
    encode(parameters, QStringLiteral("code"));
}

} // namespace

SignIn::SignIn(const ServiceSetup &setup, QNetworkAccessManager *network,
               std::unique_ptr<LoopbackReplyHandler> handler, QObject *parent)
    : QObject(parent), m_network(network), m_handler(std::move(handler)),
      m_flow(new QOAuth2AuthorizationCodeFlow(network, this))
{
    configure(setup);
    connect(m_flow, &QAbstractOAuth::authorizeWithBrowser, this, &SignIn::openPage);
    connect(m_flow, &QAbstractOAuth::granted, this,
            [this] { emit granted(m_flow->token(), m_flow->refreshToken()); });
    connect(m_flow, &QAbstractOAuth2::error, this, &SignIn::failed);
    connect(m_handler.get(), &LoopbackReplyHandler::denied, this, &SignIn::failed);
    connect(m_handler.get(), &LoopbackReplyHandler::tokensRefused, this, &SignIn::failed);
}

SignIn::~SignIn()
{
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
        [verifier, setup](QAbstractOAuth::Stage stage, QVariantMap *parameters) {
            if (stage == QAbstractOAuth::Stage::RequestingAuthorization) {
                if (setup.scope.isEmpty())
                    parameters->remove(QStringLiteral("scope"));
                addChallenge(*parameters, verifier);
                const QUrlQuery written(setup.authorizationUrl);
                for (const auto &item : written.queryItems())
                    parameters->remove(item.first);
            } else if (stage == QAbstractOAuth::Stage::RequestingAccessToken) {
                addVerifier(*parameters, verifier, setup);
            }
        });
}

bool SignIn::start()
{
    if (!m_handler->open())
        return false;
    m_flow->grant();
    return true;
}

void SignIn::acceptCode(const QString &code)
{
    m_handler->acceptCode(code);
}

} // namespace velmora
