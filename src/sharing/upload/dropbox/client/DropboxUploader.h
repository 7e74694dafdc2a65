// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sharing/upload/dropbox/client/ApiRequest.h"
#include "sharing/upload/net/NetworkOptions.h"

#include <QFile>
#include <QTimer>
#include <QUrl>

namespace velmora
{

namespace DropboxClient
{

/// Sends one file to the file-sharing service: in one request up to 4 MiB, else in a session of
/// such pieces. A request that fails for a passing reason is repeated from the last byte that the
/// service has acknowledged. One piece is in memory at a time. GUI thread.
class DropboxUploader : public QObject
{
    Q_OBJECT
public:
    static constexpr qint64 kChunkSize = 4194304; ///< bytes

    /// @p content is the address of the service's content host; @p network must outlive it.
    DropboxUploader(ServiceNetwork &network, const QUrl &content, const NetworkOptions &options,
                    QObject *parent = nullptr);

    void setAccessToken(const QString &token) { m_request.setAccessToken(token); }
    /// @p target is the file's path at the service. False after failed().
    bool upload(const QString &source, const QString &target);
    /// After unauthorized() or cutOff(), with a new access token: goes on where it stopped.
    void resume();
    /// After cutOff(), with the old access token: goes on after a while.
    void retryLater();
    /// For the user, after failed().
    QString errorText() const { return m_errorText; }

public slots:
    void abort();
    void canceled(); ///< The same.

signals:
    void uploadProgress(qint64 uploadedBytes, qint64 totalBytes);
    void finished();
    void failed();
    void operationAborted();
    /// The service does not take the access token; @p error is what to tell if there is no other.
    void unauthorized(const QString &error);
    /// The service closed the connection instead of answering, @p times in a row so far. Answer
    /// with resume() or retryLater().
    void cutOff(int times);
    void acknowledged(); ///< The service took what was sent last.

private:
    enum class Step { Single, Start, Append, Finish };

    Step nextStep() const;
    bool readChunk();
    void send();
    void onAnswered(const QByteArray &body);
    void onError(int code, const QString &message);
    bool adoptOffset();
    bool fail(const QString &error);

    const QUrl m_content;
    const NetworkOptions m_options;
    ApiRequest m_request;
    QTimer m_retry;
    QFile m_file;
    QString m_target;
    QString m_sessionId;
    QString m_errorText;
    QByteArray m_chunk;
    Step m_step = Step::Single;
    qint64 m_size = 0;         ///< bytes
    qint64 m_acknowledged = 0; ///< bytes that the service has
    int m_failures = 0;        ///< Since the last acknowledged request.
    bool m_active = false;
};

} // namespace DropboxClient

} // namespace velmora
