// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "project/frames/FrameFitter.h"
#include "ui/model/SlideState.h"

#include <QDateTime>
#include <QImage>
#include <QObject>
#include <QString>

#include <condition_variable>
#include <memory>
#include <mutex>

class QThread;

namespace velmora
{

/// The picture of a slide that is wanted.
struct CaptionPictureRequest {
    bool isTitle = false;
    SlideState slide;
    FrameFormat video;    ///< The frame of the video.
    QSize size;           ///< px; of the picture, in the video's proportions.
    bool play = false;    ///< Let the caption appear with its effect first.
    int milliseconds = 0; ///< How long it takes to appear.
};

/// Paints pictures of a slide with its caption on a thread of its own, with the code that paints
/// the video. The newest request wins: older ones that are not begun are dropped, and an effect
/// that is playing is broken off. GUI thread.
class CaptionPictureMaker : public QObject
{
    Q_OBJECT
public:
    explicit CaptionPictureMaker(QObject *parent = nullptr);
    /// Waits for the picture in work.
    ~CaptionPictureMaker() override;

    void request(const CaptionPictureRequest &request);
    /// Drops what was asked for and not yet told.
    void clear();

signals:
    /// A picture, or a null one with a reason for the user. Pictures that come faster than they are
    /// fetched replace each other.
    void pictureReady(const QImage &picture, const QString &error);

private:
    void run();
    bool next(CaptionPictureRequest *request);
    void make(const CaptionPictureRequest &request);
    void makeBare(const CaptionPictureRequest &request);
    void play(const CaptionPictureRequest &request, const QImage &captioned);
    bool isOutdated() const { return m_stopped || m_hasRequest; }
    void tell(const QImage &picture, const QString &error = QString());
    void deliver();

    std::unique_ptr<QThread> m_thread;
    std::mutex m_mutex; ///< Guards what follows up to the blank line.
    std::condition_variable m_changed;
    bool m_stopped = false;
    bool m_hasRequest = false;
    CaptionPictureRequest m_request;
    bool m_hasPicture = false;
    QImage m_picture;
    QString m_error;

    // The thread's own: the slide without its caption, and what it was made from.
    CaptionPictureRequest m_bareRequest;
    QDateTime m_bareFileTime;
    QImage m_bare;
    QString m_bareError;
};

} // namespace velmora
