// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/upload/net/ReplyGuard.h"

#include "sharing/SharingLog.h"

#include <QNetworkReply>
#include <QSslError>

namespace velmora
{

namespace
{

constexpr qint64 kLargestAnswer = 1024 * 1024; // bytes

}

ReplyGuard::ReplyGuard(QNetworkReply *reply, int stallMs) : QObject(reply), m_reply(reply)
{
    m_stall.setSingleShot(true);
    m_stall.setInterval(stallMs);
    connect(&m_stall, &QTimer::timeout, this, [this] { end(Verdict::Stalled); });
    const auto moved = [this] { m_stall.start(); };
    connect(reply, &QNetworkReply::uploadProgress, this, moved);
    connect(reply, &QNetworkReply::downloadProgress, this, moved);
    connect(reply, &QNetworkReply::readyRead, this, &ReplyGuard::checkSize);
    connect(reply, &QNetworkReply::finished, &m_stall, &QTimer::stop);
    connect(reply, &QNetworkReply::sslErrors, this, [](const QList<QSslError> &errors) {
        for (const QSslError &error : errors)
            qCWarning(lcSharing).noquote() << "TLS error:" << error.errorString();
    });
    m_stall.start();
}

ReplyGuard::Verdict ReplyGuard::verdict(const QNetworkReply *reply)
{
    const auto *guard = reply->findChild<ReplyGuard *>(QString(), Qt::FindDirectChildrenOnly);
    return guard ? guard->m_verdict : Verdict::Good;
}

void ReplyGuard::checkSize()
{
    if (m_reply->bytesAvailable() > kLargestAnswer)
        end(Verdict::TooLarge);
}

void ReplyGuard::end(Verdict verdict)
{
    if (m_verdict != Verdict::Good)
        return;
    m_verdict = verdict;
    m_reply->abort();
}

} // namespace velmora
