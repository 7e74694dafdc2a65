// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/images/ThubnailProvider.h"

#include "project/images/Thumbnail.h"

#include <QDeadlineTimer>
#include <QMutexLocker>

#include <algorithm>

namespace velmora
{

namespace
{

// Between two thumbnails the thread leaves the disk and the processor to the editor for a moment.
constexpr int kPauseAfterWork = 10; // ms
constexpr int kPauseWhenIdle = 500; // ms; a request ends it early

} // namespace

ThubnailProvider::ThubnailProvider(QObject *parent) : QThread(parent) {}

ThubnailProvider::~ThubnailProvider()
{
    stop();
}

QUuid ThubnailProvider::request(const QString &path)
{
    const QUuid id = QUuid::createUuid();
    const QMutexLocker locker(&m_mutex);
    m_queue.enqueue({id, path});
    m_wake.wakeAll();
    return id;
}

QImage ThubnailProvider::thumbnail(const QUuid &id) const
{
    const QMutexLocker locker(&m_mutex);
    return m_thumbnails.value(id);
}

void ThubnailProvider::drop(const QUuid &id)
{
    const QMutexLocker locker(&m_mutex);
    const auto isDropped = [&id](const Request &request) { return request.id == id; };
    m_queue.erase(std::remove_if(m_queue.begin(), m_queue.end(), isDropped), m_queue.end());
    m_thumbnails.remove(id);
    if (m_inWork == id)
        m_inWork = QUuid();
}

void ThubnailProvider::clear()
{
    const QMutexLocker locker(&m_mutex);
    m_queue.clear();
    m_thumbnails.clear();
    m_inWork = QUuid();
}

void ThubnailProvider::stop()
{
    requestInterruption();
    {
        // The thread looks at the request for interruption under the mutex before it waits.
        const QMutexLocker locker(&m_mutex);
        m_wake.wakeAll();
    }
    wait();
}

void ThubnailProvider::run()
{
    while (!isInterruptionRequested()) {
        Request request;
        const bool hasRequest = takeRequest(&request);
        if (hasRequest)
            finishRequest(request, makeThumbnail(request.path));
        rest(hasRequest);
    }
}

bool ThubnailProvider::takeRequest(Request *request)
{
    const QMutexLocker locker(&m_mutex);
    if (m_queue.isEmpty())
        return false;
    *request = m_queue.dequeue();
    m_inWork = request->id;
    return true;
}

void ThubnailProvider::finishRequest(const Request &request, const QImage &thumbnail)
{
    {
        const QMutexLocker locker(&m_mutex);
        const bool isWanted = m_inWork == request.id && !thumbnail.isNull();
        m_inWork = QUuid();
        if (!isWanted)
            return;
        m_thumbnails.insert(request.id, thumbnail);
    }
    emit thumbnailReady(request.id);
}

void ThubnailProvider::rest(bool worked)
{
    const QDeadlineTimer end(worked ? kPauseAfterWork : kPauseWhenIdle);
    const QMutexLocker locker(&m_mutex);
    while (!isInterruptionRequested() && (worked || m_queue.isEmpty())) {
        if (!m_wake.wait(&m_mutex, end))
            return;
    }
}

} // namespace velmora
