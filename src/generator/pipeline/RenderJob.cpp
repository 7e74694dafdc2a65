// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/pipeline/RenderJob.h"

#include "generator/GeneratorLog.h"
#include "generator/encoding/EncoderLocator.h"
#include "generator/pipeline/CacheSweeper.h"
#include "generator/pipeline/GeneratorThread.h"
#include "generator/pipeline/InputCheck.h"
#include "generator/pipeline/OutputTarget.h"
#include "generator/pipeline/RenderFailure.h"

#include <QThread>

#include <atomic>
#include <functional>
#include <mutex>
#include <utility>

namespace velmora
{

namespace
{

constexpr int kSmallestSide = 16; // px; what all the encoders take

QString stageName(int step)
{
    switch (step) {
    case GeneratorThread::FrameRendering:
        return QStringLiteral("frames");
    case GeneratorThread::SegmentEncoding:
        return QStringLiteral("segments");
    case GeneratorThread::Joining:
        return QStringLiteral("join");
    case GeneratorThread::Sound:
        return QStringLiteral("sound");
    default:
        return QStringLiteral("multiplex");
    }
}

} // namespace

class RenderJob::Private
{
public:
    Private(RenderJob *job, RenderRequest renderRequest, QString folder)
        : q(job), request(std::move(renderRequest)), cacheFolder(std::move(folder)), checking(*this)
    {
    }

    /// Runs the checks off the job's thread.
    class Checking : public QThread
    {
    public:
        explicit Checking(Private &job) : m_job(job) {}

    protected:
        void run() override { m_job.check(); }

    private:
        Private &m_job;
    };

    void check();
    RenderError findFault();
    RenderError checkProject() const;
    void onChecked();
    void startGenerator();
    void endFailed(const RenderError &error);
    void end(const std::function<void()> &tell);

    RenderJob *const q;
    const RenderRequest request;
    const QString cacheFolder;
    Timeline timeline;
    EncoderLocation encoder;
    OutputTarget target;
    Checking checking;
    std::mutex faultMutex;
    RenderError fault; ///< What the checks found.
    std::unique_ptr<GeneratorThread> generator;
    std::atomic_bool cancelRequested{false};
    bool paused = false;
    bool started = false;
    bool ended = false;
};

void RenderJob::Private::check()
{
    const RenderError found = findFault();
    const std::lock_guard<std::mutex> locker(faultMutex);
    fault = found;
}

/// Everything that can be known before the first frame.
RenderError RenderJob::Private::findFault()
{
    // First of all: what killed renders left may fill the very disk that the checks look at.
    CacheSweeper::sweepAll(cacheFolder);
    RenderError error = checkProject();
    if (error.isSet())
        return error;
    encoder = locateEncoder();
    if (encoder.program.isEmpty())
        return {RenderErrorCode::kEncoder, encoder.error};
    error = target.prepare(request.project->fileName(), request.project->format(),
                           CacheSweeper::lockFolder());
    if (!error.isSet())
        error = InputCheck::refuseReplacing(*request.project, target.fileName());
    if (!error.isSet())
        error = InputCheck::run(*request.project, cancelRequested);
    return error;
}

RenderError RenderJob::Private::checkProject() const
{
    if (timeline.stages().isEmpty())
        return {RenderErrorCode::kRequest, RenderJob::tr("The slideshow has no slides.")};
    const QSize size = request.project->resolution();
    if (size.width() < kSmallestSide || size.height() < kSmallestSide)
        return {RenderErrorCode::kRequest,
                RenderJob::tr("A video of %1x%2 pixels is too small; each side needs at least %3.")
                    .arg(size.width())
                    .arg(size.height())
                    .arg(kSmallestSide)};
    return {};
}

void RenderJob::Private::onChecked()
{
    RenderError error;
    {
        const std::lock_guard<std::mutex> locker(faultMutex);
        error = fault;
    }
    if (error.isSet())
        qCWarning(generatorLog).noquote() << "The checks failed:" << error.code;
    if (cancelRequested)
        end([this] { emit q->cancelled(); });
    else if (error.isSet())
        endFailed(error);
    else
        startGenerator();
}

void RenderJob::Private::startGenerator()
{
    generator = std::make_unique<GeneratorThread>(
        *request.project,
        GeneratorThread::Settings{timeline, request.parallel, request.profile, encoder.program,
                                  cacheFolder},
        target);
    GeneratorThread *const thread = generator.get();
    thread->setPaused(paused);
    connect(thread, &GeneratorThread::videoFrameGenerated, q,
            [this](qint64 frame, qint64 count) { emit q->progress(frame, count); });
    connect(thread, &GeneratorThread::stepChanged, q,
            [this](int step) { emit q->stageChanged(stageName(step)); });
    connect(thread, &GeneratorThread::fullVideoGenerated, q, [this](const QString &fileName) {
        end([this, fileName] { emit q->finished(fileName); });
    });
    connect(thread, &GeneratorThread::failed, q,
            [this](const RenderError &error) { endFailed(error); });
    connect(thread, &GeneratorThread::cancelled, q,
            [this] { end([this] { emit q->cancelled(); }); });
    thread->start();
}

void RenderJob::Private::endFailed(const RenderError &error)
{
    if (RenderFailure::comesOfTermination(error))
        end([this] { emit q->cancelled(); });
    else
        end([this, error] { emit q->failed(error); });
}

/// Cleans up and only then tells the outcome, so that its receiver finds nothing left behind.
void RenderJob::Private::end(const std::function<void()> &tell)
{
    if (ended)
        return;
    ended = true;
    generator.reset();
    target.release();
    tell();
}

RenderJob::RenderJob(RenderRequest request, const AppSettings &settings, const QString &cacheFolder,
                     QObject *parent)
    : QObject(parent), d(std::make_unique<Private>(this, std::move(request), cacheFolder))
{
    Q_UNUSED(settings)
    qRegisterMetaType<RenderError>();
    connect(&d->checking, &QThread::finished, this, [this] { d->onChecked(); });
}

RenderJob::~RenderJob()
{
    d->cancelRequested = true;
    d->checking.disconnect(this);
    d->checking.wait();
}

void RenderJob::start()
{
    if (d->started)
        return;
    d->started = true;
    emit stageChanged(QStringLiteral("check"));
    if (d->request.project)
        d->timeline = Timeline::ofProject(*d->request.project, d->request.transitionSeconds);
    d->checking.start();
}

void RenderJob::setPaused(bool paused)
{
    d->paused = paused;
    if (d->generator)
        d->generator->setPaused(paused);
}

void RenderJob::cancel()
{
    d->cancelRequested = true;
    if (d->generator)
        d->generator->cancel();
    else if (!d->started && !d->ended) {
        d->started = true;
        d->end([this] { emit cancelled(); });
    }
}

} // namespace velmora
