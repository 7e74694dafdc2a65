// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "generator/encoding/VideoUtil.h"
#include "generator/pipeline/Progress.h"
#include "generator/pipeline/RenderCache.h"
#include "generator/pipeline/RenderError.h"
#include "generator/pipeline/RenderPlan.h"
#include "project/documents/Timeline.h"
#include "project/frames/FrameFitter.h"

#include <QElapsedTimer>
#include <QSize>
#include <QThread>
#include <QThreadPool>
#include <QTimer>

#include <atomic>
#include <memory>
#include <mutex>

namespace velmora
{

class FrameProducer;
class OutputTarget;
class ProjectFile;
class ProjectItem;
class SlideFrames;

/// Turns a project into one finished video. Frames are painted into a private cache, encoded
/// slide by slide, joined and multiplexed with the sound track, which a second thread makes
/// meanwhile. Lives on a thread with an event loop, from which its signals about progress come;
/// the project must not change while it runs. Deleting it cancels and waits.
class GeneratorThread : public QThread
{
    Q_OBJECT
public:
    /// What happens at the time; each step comes at most once, in this order.
    enum Step { FrameRendering, SegmentEncoding, Joining, Sound, Multiplexing };

    struct Settings {
        Timeline timeline;
        bool parallel = false; ///< Two slides at a time.
        OutputProfile profile = OutputProfile::OriginalQuality;
        QString encoder;     ///< Absolute path of ffmpeg.
        QString cacheFolder; ///< Where the private cache is made.
    };

    /// @p project and @p target must outlive the thread; @p target is prepared.
    GeneratorThread(const ProjectFile &project, const Settings &settings, OutputTarget &target,
                    QObject *parent = nullptr);
    ~GeneratorThread() override;

    // Any thread.
    void setPaused(bool paused) { m_paused = paused; }
    void cancel();

signals:
    /// Work done of all work, in frames, and the frames' size in px; never decreases and ends at
    /// @p count. At most ten times a second.
    void videoFrameGenerated(qint64 frame, qint64 count, QSize size);
    /// The frames of the slide at @p index are painted.
    void previewFrameGenerated(velmora::ProjectItem *item, int index);
    void fullVideoStarted();
    /// The last signal of a render that went well; the video lies at @p fileName.
    void fullVideoGenerated(const QString &fileName);
    /// The last signal of a render that cancel() ended.
    void cancelled();
    void stepChanged(int currStep);
    /// The last signal of a render that failed.
    void failed(const velmora::RenderError &error);

protected:
    void run() override;

private slots:
    void onVideoFrameGenerated();
    void onPreviewFrameGenerated();

private:
    class VideoConverterTask;
    class PrepareAudioThread;

    bool render();
    bool prepareCache();
    void startSound();
    bool encodeSlides();
    void encodeInOrder(FrameProducer &producer);
    void encodeInPool(FrameProducer &producer);
    bool joinSlides();
    bool waitForSound();
    bool multiplex();
    void conclude(bool done);
    void recordStart() const;
    qint64 workOfEndStep() const; ///< Of joining, sound and multiplexing each.

    // For the tasks, from their threads.
    QString videoFile(const QString &name) const;
    void waitWhilePaused() const;
    void fail(const RenderError &error);
    void failWithTool(const VideoUtil &util);
    void reportProgress(qint64 units);
    void reportSlidePainted(int order);
    void enterStep(Step step);

    void onTimer();
    void watchForStall();

    const ProjectFile &m_project;
    const Settings m_settings;
    OutputTarget &m_target;
    EncodingContext m_context;
    RenderPlan m_plan;
    RenderCache m_cache;
    QThreadPool m_pool;
    QTimer m_timer;
    Progress m_progress;
    std::unique_ptr<SlideFrames> m_frames;
    std::unique_ptr<PrepareAudioThread> m_soundThread;

    std::atomic_bool m_paused{false};
    std::mutex m_mutex; ///< Guards the members below it, up to the step.
    RenderError m_error;
    QVector<int> m_painted; ///< Slides whose painting is to be told, by order.
    int m_step = -1;

    QElapsedTimer m_elapsed;

    // Of the thread that the object lives on.
    QElapsedTimer m_sinceMove; ///< Since the last change of the progress.
    qint64 m_lastValue = -1;
    qint64 m_warnedAfter = 0; ///< ms without a move
};

} // namespace velmora
