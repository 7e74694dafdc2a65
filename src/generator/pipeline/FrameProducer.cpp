// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/pipeline/FrameProducer.h"

#include "generator/GeneratorLog.h"
#include "generator/pipeline/FramePainter.h"
#include "generator/pipeline/SlideFrames.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace velmora
{

namespace
{
constexpr std::chrono::milliseconds kPollInterval(100); // pause and cancel are polled
}

FrameProducer::FrameProducer(const RenderPlan &plan, SlideFrames &frames, EncodingContext &context,
                             const std::atomic_bool &paused, Reports reports)
    : m_plan(plan), m_frames(frames), m_context(context), m_paused(paused),
      m_reports(std::move(reports))
{
    for (int order = 0; order < plan.slides().size(); ++order) {
        const PlannedSlide &slide = plan.slides().at(order);
        m_firstWork.append(m_works.size());
        m_unpainted.append(slide.pictures());
        for (int stage = 0; stage < slide.stages.size(); ++stage)
            m_works.append({order, stage, slide.stages.at(stage).pictures});
    }
}

FrameProducer::~FrameProducer()
{
    wait();
    // The encoding threads left under the lock. Taking it shows the thread sanitizer, which does
    // not see Qt's thread pool wait for them, that they are done.
    const std::lock_guard<std::mutex> locker(m_mutex);
}

bool FrameProducer::waitForStage(int order, int stage)
{
    const int work = workOf(order, stage);
    {
        const std::lock_guard<std::mutex> locker(m_mutex);
        m_wanted = std::max(m_wanted, work);
        m_changed.notify_all();
    }
    return paintWhile([this, work] { return m_works.at(work).painted < m_works.at(work).pictures; },
                      work);
}

void FrameProducer::stageEncoded(int order, int stage)
{
    const std::lock_guard<std::mutex> locker(m_mutex);
    m_ahead -= m_works.at(workOf(order, stage)).pictures;
    m_changed.notify_all();
}

void FrameProducer::run()
{
    paintWhile([this] { return m_next < m_works.size(); }, m_works.size() - 1);
}

bool FrameProducer::paintWhile(const std::function<bool()> &isWanted, int lastWork)
{
    FramePainter painter(m_plan, m_frames, m_context);
    std::unique_lock<std::mutex> locker(m_mutex);
    while (isWanted()) {
        if (m_context.cancelled)
            return false;
        Picture picture;
        if (!take(lastWork, &picture)) {
            m_changed.wait_for(locker, kPollInterval);
            continue;
        }
        locker.unlock();
        const bool painted = paint(painter, picture);
        locker.lock();
        if (!painted)
            return false;
    }
    return true;
}

int FrameProducer::workOf(int order, int stage) const
{
    return m_firstWork.at(order) + stage;
}

bool FrameProducer::take(int lastWork, Picture *picture)
{
    if (m_paused || m_next >= m_works.size() || m_next > lastWork || !mayBegin(m_next))
        return false;
    Work &work = m_works[m_next];
    if (work.given == 0) {
        m_ahead += work.pictures;
        qCInfo(generatorLog).noquote()
            << m_plan.slides().at(work.order).stages.at(work.stage).paintText();
    }
    *picture = {m_next, ++work.given};
    if (work.given == work.pictures)
        ++m_next;
    return true;
}

bool FrameProducer::mayBegin(int work) const
{
    return m_works.at(work).given > 0 || work <= m_wanted + 1 ||
           m_ahead + m_works.at(work).pictures <= kPicturesAhead;
}

bool FrameProducer::paint(FramePainter &painter, const Picture &picture)
{
    const int order = m_works.at(picture.work).order;
    const int stage = m_works.at(picture.work).stage;
    if (!painter.paint(order, stage, picture.number)) {
        m_reports.failed(painter.error());
        return false;
    }
    bool slideDone = false;
    {
        const std::lock_guard<std::mutex> locker(m_mutex);
        ++m_works[picture.work].painted;
        slideDone = --m_unpainted[order] == 0;
        m_changed.notify_all();
    }
    m_reports.painted(m_plan.slides().at(order).stages.at(stage).paintingWork());
    if (slideDone) {
        m_frames.paintingDone(order);
        m_reports.slidePainted(order);
    }
    return true;
}

} // namespace velmora
