// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/upload/dropbox/client/DropboxUploader.h"

#include "sharing/SharingLog.h"
#include "sharing/upload/ServiceSetup.h"
#include "sharing/upload/wire/DropboxMessages.h"

#include <QCoreApplication>

#include <algorithm>

namespace velmora
{

namespace DropboxClient
{

namespace
{

constexpr int kLongestDelay = 60000; // ms

} // namespace

DropboxUploader::DropboxUploader(ServiceNetwork &network, const QUrl &content,
                                 const NetworkOptions &options, QObject *parent)
    : QObject(parent), m_content(content), m_options(options), m_request(network)
{
    m_retry.setSingleShot(true);
    connect(&m_retry, &QTimer::timeout, this, &DropboxUploader::send);
    connect(&m_request, &ApiRequest::answered, this, &DropboxUploader::onAnswered);
    connect(&m_request, &ApiRequest::signal_errorOccurred, this, &DropboxUploader::onError);
    connect(&m_request, &ApiRequest::uploadProgress, this, [this](qint64 bytes) {
        emit uploadProgress(std::min(m_acknowledged + bytes, m_size), m_size);
    });
}

bool DropboxUploader::upload(const QString &source, const QString &target)
{
    if (!QFile::exists(source))
        return fail(QCoreApplication::translate("velmora::DropboxClient::DropboxUploader",
                                                "source file not found"));
    m_file.setFileName(source);
    if (!m_file.open(QIODevice::ReadOnly))
        return fail(QCoreApplication::translate("velmora::DropboxClient::DropboxUploader",
                                                "can't open source file for reading"));
    m_target = target;
    m_size = m_file.size();
    m_active = true;
    send();
    return m_active;
}

void DropboxUploader::resume()
{
    if (m_active)
        send();
}

DropboxUploader::Step DropboxUploader::nextStep() const
{
    if (m_size <= kChunkSize)
        return Step::Single;
    if (m_sessionId.isEmpty())
        return Step::Start;
    return m_size - m_acknowledged > kChunkSize ? Step::Append : Step::Finish;
}

bool DropboxUploader::readChunk()
{
    const qint64 wanted = std::min(kChunkSize, m_size - m_acknowledged);
    if (!m_file.seek(m_acknowledged))
        return false;
    m_chunk = m_file.read(wanted);
    return m_chunk.size() == wanted;
}

void DropboxUploader::send()
{
    if (!readChunk()) {
        fail(QCoreApplication::translate("velmora::DropboxClient::DropboxUploader",
                                         "can't open source file for reading"));
        return;
    }
    m_step = nextStep();
    QString path = QStringLiteral("/2/files/upload");
    QByteArray argument = DropboxMessages::commit(m_target);
    switch (m_step) {
    case Step::Single:
        break;
    case Step::Start:
        path = QStringLiteral("/2/files/upload_session/start");
        argument = DropboxMessages::start();
        break;
    case Step::Append:
        path = QStringLiteral("/2/files/upload_session/append_v2");
        argument = DropboxMessages::append(m_sessionId, m_acknowledged);
        break;
    case Step::Finish:
        path = QStringLiteral("/2/files/upload_session/finish");
        argument = DropboxMessages::finish(m_sessionId, m_acknowledged, m_target);
        break;
    }
    m_request.post(serviceUrl(m_content, path), argument, m_chunk);
}

void DropboxUploader::onAnswered(const QByteArray &body)
{
    m_failures = 0;
    if (m_step == Step::Start) {
        m_sessionId = DropboxMessages::parse(body).sessionId;
        if (m_sessionId.isEmpty()) {
            fail(QCoreApplication::translate("velmora::DropboxClient::DropboxUploader",
                                             "The answer of the service cannot be understood."));
            return;
        }
    }
    m_acknowledged += m_chunk.size();
    m_chunk.clear();
    emit acknowledged();
    emit uploadProgress(m_acknowledged, m_size);
    if (m_step == Step::Single || m_step == Step::Finish) {
        m_active = false;
        emit finished();
        return;
    }
    send();
}

void DropboxUploader::onError(int code, const QString &message)
{
    const QString text = QStringLiteral("%1: %2").arg(QString::number(code), message);
    const HttpAnswer &answer = m_request.answer();
    if (answer.kind == HttpAnswer::Kind::Answered && answer.status == 401)
        emit unauthorized(text);
    else if (++m_failures > m_options.retries)
        fail(text);
    else if (adoptOffset())
        send();
    else if (m_request.isCutOff())
        emit cutOff(m_failures);
    else if (answer.isTransient())
        retryLater();
    else
        fail(text);
}

// The service has got more of the session than it could tell, because its answer was lost.
bool DropboxUploader::adoptOffset()
{
    if (m_step != Step::Append && m_step != Step::Finish)
        return false;
    const qint64 offset = DropboxMessages::parse(m_request.answer().body).correctOffset;
    if (offset < m_acknowledged || offset > m_acknowledged + m_chunk.size())
        return false;
    qCInfo(lcSharing) << "The service has" << offset << "bytes; the upload goes on from there";
    m_acknowledged = offset;
    return true;
}

void DropboxUploader::retryLater()
{
    const qint64 own = static_cast<qint64>(m_options.retryMs) << (m_failures - 1);
    const qint64 asked = std::max(0, m_request.answer().retryAfter) * 1000LL;
    const qint64 delay = std::min<qint64>(std::max(own, asked), kLongestDelay);
    qCInfo(lcSharing) << "The upload goes on in" << delay << "ms from byte" << m_acknowledged;
    m_retry.start(static_cast<int>(delay));
}

void DropboxUploader::abort()
{
    if (!m_active)
        return;
    m_active = false;
    m_retry.stop();
    m_request.abort();
    emit operationAborted();
}

void DropboxUploader::canceled()
{
    abort();
}

bool DropboxUploader::fail(const QString &error)
{
    m_active = false;
    m_errorText = error;
    emit failed();
    return false;
}

} // namespace DropboxClient

} // namespace velmora
