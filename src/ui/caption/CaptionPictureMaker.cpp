// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/caption/CaptionPictureMaker.h"

#include "generator/transitions/Transition.h"
#include "project/documents/Timeline.h"
#include "project/frames/CaptionPainter.h"
#include "project/frames/SlideRenderer.h"
#include "project/slides/ProjectItemFirst.h"
#include "project/slides/ProjectItemSimple.h"

#include <QFileInfo>
#include <QRandomGenerator>
#include <QThread>

#include <chrono>

namespace velmora
{

namespace
{

/// Whether both show the same slide, apart from its caption.
bool isSameBare(const CaptionPictureRequest &a, const CaptionPictureRequest &b)
{
    return a.isTitle == b.isTitle && a.slide.fileName == b.slide.fileName &&
           a.slide.angle == b.slide.angle && a.slide.backgroundIndex == b.slide.backgroundIndex &&
           a.video.size == b.video.size && a.video.origRatio == b.video.origRatio &&
           a.video.scaleToFit == b.video.scaleToFit && a.size == b.size;
}

QImage paintBare(const CaptionPictureRequest &request, QString *error)
{
    std::unique_ptr<ProjectItem> slide;
    if (request.isTitle)
        slide = std::make_unique<ProjectItemFirst>(request.slide.time);
    else
        slide = std::make_unique<ProjectItemSimple>();
    request.slide.applyTo(*slide);
    FrameFormat format = request.video;
    // Only photos that keep their own size depend on that of the video.
    const bool keepsSize = format.origRatio && !format.scaleToFit;
    if (!keepsSize)
        format.size = request.size;
    const QImage frame = SlideRenderer::bareFrame(*slide, format, error);
    if (frame.isNull() || frame.size() == request.size)
        return frame;
    return frame.scaled(request.size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
        .convertToFormat(QImage::Format_RGB32);
}

TransitionType effectFor(int number)
{
    const TransitionType type = transitionFromInt(number);
    if (type != TransitionType::Random)
        return type;
    return transitionFromInt(
        QRandomGenerator::global()->bounded(kFirstRandomTransition, kLastRandomTransition + 1));
}

} // namespace

CaptionPictureMaker::CaptionPictureMaker(QObject *parent)
    : QObject(parent), m_thread(QThread::create([this] { run(); }))
{
    m_thread->start();
}

CaptionPictureMaker::~CaptionPictureMaker()
{
    {
        const std::lock_guard<std::mutex> locker(m_mutex);
        m_stopped = true;
    }
    m_changed.notify_all();
    m_thread->wait();
}

void CaptionPictureMaker::request(const CaptionPictureRequest &request)
{
    {
        const std::lock_guard<std::mutex> locker(m_mutex);
        m_request = request;
        m_hasRequest = true;
    }
    m_changed.notify_all();
}

void CaptionPictureMaker::clear()
{
    {
        const std::lock_guard<std::mutex> locker(m_mutex);
        m_request = CaptionPictureRequest();
        m_hasRequest = true; // an empty one, which breaks off what is in work
    }
    m_changed.notify_all();
}

void CaptionPictureMaker::run()
{
    CaptionPictureRequest request;
    while (next(&request))
        make(request);
}

bool CaptionPictureMaker::next(CaptionPictureRequest *request)
{
    std::unique_lock<std::mutex> locker(m_mutex);
    m_changed.wait(locker, [this] { return m_stopped || m_hasRequest; });
    *request = m_request;
    m_hasRequest = false;
    return !m_stopped;
}

void CaptionPictureMaker::make(const CaptionPictureRequest &request)
{
    if (request.size.isEmpty()) {
        m_bare = QImage();
        m_bareRequest = CaptionPictureRequest();
        tell(QImage());
        return;
    }
    makeBare(request);
    if (m_bare.isNull()) {
        tell(QImage(), m_bareError);
        return;
    }
    QImage captioned = m_bare;
    paintCaption(captioned, request.slide.caption);
    if (request.play && request.slide.caption.isVisible())
        play(request, captioned);
    else
        tell(captioned);
}

void CaptionPictureMaker::makeBare(const CaptionPictureRequest &request)
{
    const QDateTime fileTime = QFileInfo(request.slide.fileName).lastModified();
    if (!m_bare.isNull() && isSameBare(request, m_bareRequest) && fileTime == m_bareFileTime)
        return;
    m_bareError.clear();
    m_bare = paintBare(request, &m_bareError);
    m_bareRequest = request;
    m_bareFileTime = fileTime;
}

void CaptionPictureMaker::play(const CaptionPictureRequest &request, const QImage &captioned)
{
    using Clock = std::chrono::steady_clock;
    constexpr int kFrameTime = 1000 / Timeline::kFramesPerSecond; // ms
    const TransitionType effect = effectFor(request.slide.caption.effect);
    const int count = request.milliseconds / kFrameTime;
    const Clock::time_point start = Clock::now();
    int frame = 0;
    while (frame < count) {
        QImage picture;
        renderTransitionFrame(effect, m_bare, captioned, {frame, count}, picture);
        tell(picture);
        // What takes longer than its time makes later frames drop out, not the effect last longer.
        const auto passed =
            std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - start).count();
        frame = std::max(frame + 1, int(passed / kFrameTime));
        std::unique_lock<std::mutex> locker(m_mutex);
        if (m_changed.wait_until(locker, start + std::chrono::milliseconds(frame * kFrameTime),
                                 [this] { return isOutdated(); }))
            return;
    }
    tell(captioned);
}

void CaptionPictureMaker::tell(const QImage &picture, const QString &error)
{
    bool isWaiting = false;
    {
        const std::lock_guard<std::mutex> locker(m_mutex);
        isWaiting = m_hasPicture;
        m_picture = picture;
        m_error = error;
        m_hasPicture = true;
    }
    if (!isWaiting)
        QMetaObject::invokeMethod(this, &CaptionPictureMaker::deliver, Qt::QueuedConnection);
}

void CaptionPictureMaker::deliver()
{
    QImage picture;
    QString error;
    {
        const std::lock_guard<std::mutex> locker(m_mutex);
        picture = std::move(m_picture);
        error = m_error;
        m_picture = QImage();
        m_hasPicture = false;
    }
    emit pictureReady(picture, error);
}

} // namespace velmora
