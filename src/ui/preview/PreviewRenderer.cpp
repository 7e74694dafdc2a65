// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/preview/PreviewRenderer.h"

#include "ui/preview/SlidePictures.h"

namespace velmora
{

PreviewRenderer::PreviewRenderer(QObject *parent)
    : FrameSource(parent), m_thread(QThread::create([this] { work(); }))
{
    m_thread->setObjectName(QStringLiteral("preview"));
    m_thread->start();
}

PreviewRenderer::~PreviewRenderer()
{
    {
        const std::lock_guard<std::mutex> locker(m_mutex);
        m_quit = true;
    }
    m_changed.notify_all();
    m_thread->wait();
}

void PreviewRenderer::request(int buffId, const PreviewScript::Pointer &script, int slide,
                              int firstFrame)
{
    {
        const std::lock_guard<std::mutex> locker(m_mutex);
        m_jobs.push_back({buffId, script, slide, firstFrame});
    }
    m_changed.notify_all();
}

void PreviewRenderer::cancel()
{
    const std::lock_guard<std::mutex> locker(m_mutex);
    m_jobs.clear();
    m_held = 0;
    ++m_generation;
}

void PreviewRenderer::release(int pictures)
{
    {
        const std::lock_guard<std::mutex> locker(m_mutex);
        m_held -= pictures;
    }
    m_changed.notify_all();
}

int PreviewRenderer::heldPictures(const QSize &size)
{
    const qint64 bytes = qMax<qint64>(4LL * size.width() * size.height(), 1);
    return static_cast<int>(qBound<qint64>(kFewestHeld, kHeldBytes / bytes, kMostHeld));
}

bool PreviewRenderer::mayBegin() const
{
    return !m_jobs.empty() && m_held < heldPictures(m_jobs.front().script->format().size);
}

void PreviewRenderer::work()
{
    SlidePictures pictures;
    std::unique_lock<std::mutex> locker(m_mutex);
    while (!m_quit) {
        if (!mayBegin()) {
            m_changed.wait(locker);
            continue;
        }
        const Job job = m_jobs.front();
        if (++m_jobs.front().frame >= job.script->frameCount(job.slide))
            m_jobs.pop_front();
        ++m_held;
        const int generation = m_generation;
        locker.unlock();
        deliver(job, generation, pictures.paint(job.script, job.slide, job.frame));
        locker.lock();
    }
}

void PreviewRenderer::deliver(const Job &job, int generation, const QImage &picture)
{
    const auto emitIt = [this, buffId = job.buffId, slide = job.slide, frame = job.frame,
                         generation, picture] {
        {
            const std::lock_guard<std::mutex> locker(m_mutex);
            if (generation != m_generation)
                return;
        }
        emit frameGenerated(buffId, slide, frame, picture);
    };
    QMetaObject::invokeMethod(this, emitIt, Qt::QueuedConnection);
}

} // namespace velmora
