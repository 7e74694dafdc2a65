// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sharing/upload/ServiceSetup.h"
#include "sharing/upload/TokenStore.h"

#include <QObject>

namespace velmora
{

class ServiceNetwork;

namespace DropboxClient
{
class DropboxUploader;
}

/// The transfer of one file to the file-sharing service, and the tokens it needs for that. Asks for
/// a fresh token when the service no longer takes the one it has, and again only once something was
/// acknowledged with that. GUI thread.
class DropboxUpload : public QObject
{
    Q_OBJECT
public:
    /// @p network must outlive it.
    DropboxUpload(const QString &fileName, const ServiceSetup &setup, const TokenStore &tokens,
                  ServiceNetwork &network, QObject *parent = nullptr);

    void abort();

public slots:
    void upload();
    /// Stores the tokens and starts the transfer, or goes on with it. Without @p refreshToken the
    /// one known so far is kept.
    void onTokenReceived(QString accessToken, QString refreshToken);
    /// There is none for now, because of @p error.
    void onTokenUnavailable(const QString &error);

signals:
    void uploaderStarted(); ///< The first request is sent; once.
    void uploaderFinished(QString path);
    void uploaderFailed(QString error);
    void uploaderProgress(qint64 uploaded, qint64 total);
    /// Answer with onTokenReceived() or onTokenUnavailable(). @p refreshToken is empty when the
    /// user must sign in.
    void tokenExpired(const QString &refreshToken);

private:
    void loadTokens();
    void onUnauthorized(const QString &error);
    void onCutOff(int times);
    void start();

    const QString m_fileName;
    const QString m_target;
    const QString m_tokenKey;
    TokenStore m_tokens;
    QString m_accessToken;
    QString m_refreshToken;
    DropboxClient::DropboxUploader *m_uploader;
    bool m_started = false;
    bool m_asked = false;      ///< For a fresh token.
    bool m_cutOff = false;     ///< That was why.
    bool m_tokenTaken = false; ///< The service has acknowledged something.
};

} // namespace velmora
