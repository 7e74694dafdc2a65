// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/images/ThubnailProvider.h"

#include "project/images/Thumbnail.h"

#include <algorithm>
#include <chrono>

namespace velmora
{

namespace
{

// Between two thumbnails the thread leaves the disk and the processor to the editor for a moment.
constexpr std::chrono::milliseconds kPauseAfterWork(10);
constexpr std::chrono::milliseconds kPauseWhenIdle(500); // A request ends it early.

} // namespace

ThubnailProvider::ThubnailProvider(QObject *parent) : QThread(parent) {}

ThubnailProvider::~ThubnailProvider()
{
    stop();
}

QUuid ThubnailProvider::request(const QString &path)
{
    const QUuid id = QUuid::createUuid();
    const std::lock_guard<std::mutex> locker(m_mutex);
    m_queue.enqueue({id, path});
    m_wake.notify_all();
    return id;
}

QImage ThubnailProvider::thumbnail(const QUuid &id) const
{
    const std::lock_guard<std::mutex> locker(m_mutex);
    return m_thumbnails.value(id);
}

void ThubnailProvider::drop(const QUuid &id)
{
    const std::lock_guard<std::mutex> locker(m_mutex);
    const auto isDropped = [&id](const Request &request) { return request.id == id; };
    m_queue.erase(std::remove_if(m_queue.begin(), m_queue.end(), isDropped), m_queue.end());
    m_thumbnails.remove(id);
    if (m_inWork == id)
        m_inWork = QUuid();
}

void ThubnailProvider::clear()
{
    const std::lock_guard<std::mutex> locker(m_mutex);
    m_queue.clear();
    m_thumbnails.clear();
    m_inWork = QUuid();
}

void ThubnailProvider::stop()
{
    requestInterruption();
    {
        // The thread looks at the request for interruption under the mutex before it waits.
        const std::lock_guard<std::mutex> locker(m_mutex);
        m_wake.notify_all();
    }
    wait();
}

void ThubnailProvider::run()
{
    while (!isInterruptionRequested()) {
        Request request;
        const bool hasRequest = takeRequest(&request);
        if (hasRequest)
            finishRequest(request, make(request.path));
        rest(hasRequest);
    }
}

QImage ThubnailProvider::make(const QString &path) const
{
    return m_photoBox.isEmpty() ? makeThumbnail(path) : makePhotoThumbnail(path, m_photoBox);
}

bool ThubnailProvider::takeRequest(Request *request)
{
    const std::lock_guard<std::mutex> locker(m_mutex);
    if (m_queue.isEmpty())
        return false;
    *request = m_queue.dequeue();
    m_inWork = request->id;
    return true;
}

void ThubnailProvider::finishRequest(const Request &request, const QImage &thumbnail)
{
    {
        const std::lock_guard<std::mutex> locker(m_mutex);
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
    std::unique_lock<std::mutex> locker(m_mutex);
    m_wake.wait_for(locker, worked ? kPauseAfterWork : kPauseWhenIdle, [this, worked] {
        return isInterruptionRequested() || (!worked && !m_queue.isEmpty());
    });
}

} // namespace velmora
