// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/upload/dropbox/DropboxUpload.h"

#include "sharing/upload/dropbox/client/DropboxUploader.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

namespace velmora
{

using Client = DropboxClient::DropboxUploader;

namespace
{

const QLatin1String kAccess("access_token");
const QLatin1String kRefresh("refresh_token");

} // namespace

DropboxUpload::DropboxUpload(const QString &fileName, const ServiceSetup &setup,
                             const TokenStore &tokens, ServiceNetwork &network, QObject *parent)
    : QObject(parent), m_fileName(fileName),
      m_target(QLatin1Char('/') + QFileInfo(fileName).fileName()), m_tokenKey(setup.tokenKey),
      m_tokens(tokens), m_uploader(new Client(network, setup.uploadUrl, setup.network, this))
{
    connect(m_uploader, &Client::uploadProgress, this, &DropboxUpload::uploaderProgress);
    connect(m_uploader, &Client::finished, this, [this] { emit uploaderFinished(m_target); });
    connect(m_uploader, &Client::failed, this,
            [this] { emit uploaderFailed(m_uploader->errorText()); });
    connect(m_uploader, &Client::unauthorized, this, &DropboxUpload::onUnauthorized);
    connect(m_uploader, &Client::cutOff, this, &DropboxUpload::onCutOff);
    connect(m_uploader, &Client::acknowledged, this, [this] {
        m_asked = false;
        m_tokenTaken = true;
    });
    connect(m_uploader, &Client::operationAborted, this, [this] {
        emit uploaderFailed(
            QCoreApplication::translate("velmora::DropboxUpload", "Operation was canceled"));
    });
}

void DropboxUpload::abort()
{
    m_uploader->abort();
}

void DropboxUpload::upload()
{
    loadTokens();
    if (m_accessToken.isEmpty()) {
        m_asked = true;
        emit tokenExpired(m_refreshToken);
    } else {
        start();
    }
}

void DropboxUpload::loadTokens()
{
    const QByteArray stored = m_tokens.load(m_tokenKey).toUtf8();
    const QJsonObject object = QJsonDocument::fromJson(stored).object();
    m_accessToken = object.value(kAccess).toString();
    m_refreshToken = object.value(kRefresh).toString();
}

void DropboxUpload::onTokenReceived(QString accessToken, QString refreshToken)
{
    m_accessToken = accessToken;
    if (!refreshToken.isEmpty())
        m_refreshToken = refreshToken;
    QJsonObject stored{{kAccess, m_accessToken}};
    if (!m_refreshToken.isEmpty())
        stored.insert(kRefresh, m_refreshToken);
    const QByteArray text = QJsonDocument(stored).toJson(QJsonDocument::Compact);
    m_tokens.save(m_tokenKey, QString::fromUtf8(text));
    start();
}

void DropboxUpload::start()
{
    m_cutOff = false;
    m_uploader->setAccessToken(m_accessToken);
    if (m_started) {
        m_uploader->resume();
        return;
    }
    m_started = true;
    if (m_uploader->upload(m_fileName, m_target))
        emit uploaderStarted();
}

void DropboxUpload::onUnauthorized(const QString &error)
{
    if (m_asked) {
        emit uploaderFailed(error);
        return;
    }
    m_asked = true;
    emit tokenExpired(m_refreshToken);
}

// Without a refresh token the user would be asked, and that only with good reason.
void DropboxUpload::onCutOff(int times)
{
    const bool worthAsking = !m_refreshToken.isEmpty() || (times > 1 && !m_tokenTaken);
    if (m_asked || !worthAsking) {
        m_uploader->retryLater();
        return;
    }
    m_asked = true;
    m_cutOff = true;
    emit tokenExpired(m_refreshToken);
}

void DropboxUpload::onTokenUnavailable(const QString &error)
{
    if (!m_cutOff) {
        emit uploaderFailed(error);
        return;
    }
    m_cutOff = false;
    m_asked = false;
    m_uploader->retryLater();
}

} // namespace velmora
