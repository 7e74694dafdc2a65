// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "generator/encoding/VideoUtil.h"
#include "generator/pipeline/RenderError.h"
#include "generator/pipeline/RenderPlan.h"

#include <QThread>
#include <QVector>

#include <atomic>
#include <condition_variable>
#include <functional>
#include <mutex>

namespace velmora
{

class FramePainter;
class SlideFrames;

/// Paints the frames of all stages in order, ahead of the encoding threads. It stays at most one
/// stage, or kPicturesAhead pictures, ahead of the last stage that one of them asked for, so that
/// the cache stays small. Ends early when the context is cancelled.
class FrameProducer : public QThread
{
public:
    static constexpr int kPicturesAhead = 150;

    /// Called from any painting thread.
    struct Reports {
        std::function<void(qint64 work)> painted;    ///< One picture.
        std::function<void(int order)> slidePainted; ///< The last picture of a slide.
        std::function<void(const RenderError &error)> failed;
    };
    /// While @p paused is set no new picture is begun.
    FrameProducer(const RenderPlan &plan, SlideFrames &frames, EncodingContext &context,
                  const std::atomic_bool &paused, Reports reports);
    ~FrameProducer() override;

    /// Encoding thread: waits until the stage's pictures are all there, and paints along. False
    /// when they never will be.
    bool waitForStage(int order, int stage);
    /// Encoding thread: the stage's pictures are no longer needed.
    void stageEncoded(int order, int stage);

protected:
    void run() override;

private:
    struct Work {
        int order;
        int stage;
        int pictures;
        int given = 0;
        int painted = 0;
    };
    struct Picture {
        int work = -1;
        int number = 0;
    };
    /// Paints pictures of the works up to @p lastWork as long as @p isWanted, which is asked under
    /// the lock. False when the context is cancelled or a picture failed.
    bool paintWhile(const std::function<bool()> &isWanted, int lastWork);
    int workOf(int order, int stage) const;
    bool take(int lastWork, Picture *picture);
    bool mayBegin(int work) const;
    bool paint(FramePainter &painter, const Picture &picture);

    const RenderPlan &m_plan;
    SlideFrames &m_frames;
    EncodingContext &m_context;
    const std::atomic_bool &m_paused;
    const Reports m_reports;

    std::mutex m_mutex;
    std::condition_variable m_changed;
    QVector<Work> m_works;    ///< All stages of the plan in order.
    QVector<int> m_firstWork; ///< Of each slide.
    QVector<int> m_unpainted; ///< Pictures left of each slide.
    int m_next = 0;           ///< The work whose pictures are being given out.
    int m_wanted = 0;         ///< The last work that was asked for.
    int m_ahead = 0;          ///< Pictures given out and not yet encoded.
};

} // namespace velmora
