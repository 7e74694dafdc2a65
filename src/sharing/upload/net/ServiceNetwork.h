// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sharing/upload/net/NetworkOptions.h"

#include <QNetworkAccessManager>
#include <QSslCertificate>

namespace velmora
{

/// The network manager of one upload. Its requests follow no redirects (a token must not reach
/// another host), keep no cookies, end when nothing moves for NetworkOptions::stallMs, and take no
/// more than one megabyte of answer. Certificates that do not verify end a request, always. GUI
/// thread.
class ServiceNetwork : public QNetworkAccessManager
{
    Q_OBJECT
public:
    explicit ServiceNetwork(const NetworkOptions &options, QObject *parent = nullptr);

protected:
    QNetworkReply *createRequest(Operation operation, const QNetworkRequest &request,
                                 QIODevice *data) override;

private:
    const NetworkOptions m_options;
    QList<QSslCertificate> m_certificates;
};

} // namespace velmora
