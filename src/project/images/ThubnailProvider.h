// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>
#include <QImage>
#include <QQueue>
#include <QSize>
#include <QString>
#include <QThread>
#include <QUuid>

#include <condition_variable>
#include <mutex>

namespace velmora
{

/// Makes thumbnails of photos on its own thread, one at a time in the order of the requests, and
/// keeps them until they are dropped. Requests may be made before start(). All functions except
/// stop() may be called from any thread.
class ThubnailProvider : public QThread
{
    Q_OBJECT
public:
    explicit ThubnailProvider(QObject *parent = nullptr);
    /// Stops the thread and waits for it.
    ~ThubnailProvider() override;

    /// Has it make pictures of the bare photo, as large as fits @p box px and never enlarged, in
    /// place of the grey squares. Before start().
    void setPhotoBox(const QSize &box) { m_photoBox = box; }

    /// Queues the photo; the identifier is the one of thumbnailReady().
    QUuid request(const QString &path);
    /// The finished thumbnail, or null while it is pending, unreadable or unknown.
    QImage thumbnail(const QUuid &id) const;
    /// Forgets a request, whether it is pending, in work or finished.
    void drop(const QUuid &id);
    /// Forgets all requests.
    void clear();

    /// Ends the thread after the thumbnail in work and waits for it. Not from the thread itself.
    void stop();

signals:
    /// Once per finished request, from the thread. None follows for unreadable photos. A request
    /// that is dropped at the same moment may still be announced; thumbnail() is null then.
    void thumbnailReady(const QUuid &id);

protected:
    void run() override;

private:
    struct Request {
        QUuid id;
        QString path;
    };

    bool takeRequest(Request *request);
    void finishRequest(const Request &request, const QImage &thumbnail);
    void rest(bool worked);

    QImage make(const QString &path) const;

    QSize m_photoBox;
    mutable std::mutex m_mutex;
    std::condition_variable m_wake;
    // Guarded by m_mutex:
    QQueue<Request> m_queue;
    QHash<QUuid, QImage> m_thumbnails;
    QUuid m_inWork; ///< Null when there is none, or when it was dropped meanwhile.
};

} // namespace velmora
