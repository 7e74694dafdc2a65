// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/pipeline/GeneratorThread.h"

#include "generator/GeneratorLog.h"
#include "generator/encoding/EncoderProgress.h"
#include "generator/pipeline/FrameProducer.h"
#include "generator/pipeline/OutputTarget.h"
#include "generator/pipeline/PrepareAudioThread.h"
#include "generator/pipeline/RenderFailure.h"
#include "generator/pipeline/SlideFrames.h"
#include "generator/pipeline/VideoConverterTask.h"
#include "project/documents/ProjectFile.h"
#include "project/slides/ProjectItemFirst.h"
#include "services/MetricSender.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <cstdlib>
#include <ctime>

namespace velmora
{

namespace
{

constexpr int kPoolThreads = 2;
constexpr int kTimerInterval = 500;          // ms
constexpr unsigned long kPollInterval = 100; // ms
constexpr unsigned long kSoundPoll = 300;    // ms
constexpr qint64 kStallWarning = 60000;      // ms

constexpr int kEndPart = 100; // Joining, sound and multiplexing take such a part of the rest each.

} // namespace

GeneratorThread::GeneratorThread(const ProjectFile &project, const Settings &settings,
                                 OutputTarget &target, QObject *parent)
    : QThread(parent), m_project(project), m_settings(settings), m_target(target),
      m_cache(settings.cacheFolder)
{
    m_pool.setMaxThreadCount(kPoolThreads);
    qCInfo(generatorLog) << "GENERATOR THREADS:" << m_pool.maxThreadCount();
    m_context.size = EncoderOptions::evenSize(project.resolution());
    m_context.extension = target.extension();
    m_context.profile = settings.profile;
    m_context.encoder = settings.encoder;
    m_context.cachePath = m_cache.path();
    m_timer.setInterval(kTimerInterval);
    connect(&m_timer, &QTimer::timeout, this, &GeneratorThread::onTimer);
    connect(this, &QThread::started, &m_timer, qOverload<>(&QTimer::start));
    connect(this, &QThread::finished, &m_timer, &QTimer::stop);
}

GeneratorThread::~GeneratorThread()
{
    cancel();
    wait();
    // Shows the thread sanitizer, as in FrameProducer, that the encoding threads are done.
    const std::scoped_lock locker(m_mutex, m_context.outputMutex);
}

void GeneratorThread::cancel()
{
    m_context.cancelled = true;
}

void GeneratorThread::run()
{
    std::srand(static_cast<unsigned>(std::time(nullptr)));
    m_elapsed.start();
    emit fullVideoStarted();
    conclude(prepareCache() && render());
}

bool GeneratorThread::prepareCache()
{
    if (m_cache.isValid()) {
        qCInfo(generatorLog).noquote() << QStringLiteral("cache path:%1").arg(m_cache.path());
        return true;
    }
    qCCritical(generatorLog).noquote()
        << "Generator thread. Failed to creat cache path:" << m_cache.wantedPath();
    MetricSender::instance().record(QStringLiteral("err5"), 1);
    fail({RenderErrorCode::kCache, tr("No folder for temporary files can be made as \"%1\": %2")
                                       .arg(m_cache.wantedPath(), m_cache.errorText())});
    return false;
}

bool GeneratorThread::render()
{
    m_plan = RenderPlan::make(m_project, m_settings.timeline, std::rand);
    m_frames = std::make_unique<SlideFrames>(
        m_plan, FrameFormat{m_context.size, m_project.origRatio(), m_project.scaleToFit()});
    m_progress.reset(m_plan.totalWork() + 3 * workOfEndStep());
    recordStart();
    enterStep(FrameRendering);
    startSound();
    return encodeSlides() && joinSlides() && waitForSound() && multiplex();
}

void GeneratorThread::startSound()
{
    if (m_project.audio().items.isEmpty())
        return;
    m_soundThread = std::make_unique<PrepareAudioThread>(*this);
    m_soundThread->start();
}

bool GeneratorThread::encodeSlides()
{
    FrameProducer producer(m_plan, *m_frames, m_context, m_paused,
                           {[this](qint64 work) { reportProgress(work); },
                            [this](int order) { reportSlidePainted(order); },
                            [this](const RenderError &error) { fail(error); }});
    producer.start();
    if (m_settings.parallel)
        encodeInPool(producer);
    else
        encodeInOrder(producer);
    return !m_context.cancelled;
}

void GeneratorThread::encodeInOrder(FrameProducer &producer)
{
    for (int order = 0; order < m_plan.slides().size() && !m_context.cancelled; ++order)
        VideoConverterTask(*this, order, producer).run();
}

void GeneratorThread::encodeInPool(FrameProducer &producer)
{
    for (int order = 0; order < m_plan.slides().size(); ++order)
        m_pool.start(new VideoConverterTask(*this, order, producer), 0);
    while (!m_pool.waitForDone(static_cast<int>(kPollInterval))) {
        if (m_context.cancelled)
            m_pool.clear();
    }
}

bool GeneratorThread::joinSlides()
{
    waitWhilePaused();
    enterStep(Joining);
    QStringList segments;
    for (const PlannedSlide &slide : m_plan.slides())
        segments.append(videoFile(QStringLiteral("vid_c%1").arg(slide.index)));
    const QString total = videoFile(QStringLiteral("vid_c_total"));
    VideoUtil util(m_context);
    const QString list = m_cache.file(QStringLiteral("merge-files.txt"));
    const bool done = segments.size() == 1 ? util.moveFile(segments.constFirst(), total)
                                           : util.join(segments, list, total);
    if (!done) {
        failWithTool(util);
        return false;
    }
    for (const QString &segment : qAsConst(segments))
        QFile::remove(segment);
    reportProgress(workOfEndStep());
    return true;
}

bool GeneratorThread::waitForSound()
{
    enterStep(Sound);
    while (m_soundThread && m_soundThread->isRunning())
        m_soundThread->wait(kSoundPoll);
    reportProgress(workOfEndStep());
    return !m_context.cancelled;
}

bool GeneratorThread::multiplex()
{
    waitWhilePaused();
    enterStep(Multiplexing);
    m_cache.noteOutput(m_target.temporaryFile());
    const qint64 share = workOfEndStep();
    const QString total = videoFile(QStringLiteral("vid_c_total"));
    VideoUtil util(m_context);
    m_progress.beginRun(share, m_plan.totalLength());
    const bool done = m_soundThread ? util.multiplex(total, m_soundThread->track(),
                                                     m_plan.totalLength(), m_target.temporaryFile())
                                    : util.finishWithoutSound(total, m_target.temporaryFile());
    m_progress.endRun(share);
    if (!done) {
        fail(RenderFailure::ofTool(util, QFileInfo(m_target.fileName()).path()));
        return false;
    }
    if (m_context.cancelled)
        return false;
    const RenderError error = m_target.commit();
    if (error.isSet())
        fail(error);
    return !error.isSet();
}

void GeneratorThread::conclude(bool done)
{
    if (m_soundThread)
        m_soundThread->wait();
    if (done) {
        m_progress.finish();
        reportProgress(0);
        MetricSender::instance().record(QStringLiteral("end"), 1);
        qCInfo(generatorLog).noquote()
            << QStringLiteral(" TIME GENERATION:%1").arg(m_elapsed.elapsed());
        emit fullVideoGenerated(m_target.fileName());
        return;
    }
    RenderError error;
    {
        const std::lock_guard<std::mutex> locker(m_mutex);
        error = m_error;
    }
    if (!error.isSet()) {
        emit cancelled();
        return;
    }
    qCWarning(generatorLog).noquote() << "The render failed:" << error.code;
    if (error.code != RenderErrorCode::kCache)
        MetricSender::instance().record(QStringLiteral("err1"), 1);
    emit failed(error);
}

void GeneratorThread::recordStart() const
{
    bool titleShown = false;
    bool textStyled = false;
    for (const ProjectItem *item : m_project.items()) {
        titleShown =
            titleShown || (qobject_cast<const ProjectItemFirst *>(item) && item->isShown());
        textStyled = textStyled || item->caption().textColor != QColor(Qt::white);
    }
    const auto flag = [](bool on) { return on ? QStringLiteral("1") : QStringLiteral("0"); };
    MetricSender::instance().recordGroup({
        {QStringLiteral("gen"), QStringLiteral("1")},
        {QStringLiteral("gres"),
         QStringLiteral("%1x%2").arg(m_context.size.width()).arg(m_context.size.height())},
        {QStringLiteral("gmus"), QString::number(m_project.audio().items.size())},
        {QStringLiteral("gloop"), flag(m_project.audioLoop())},
        {QStringLiteral("goff"), QString::number(m_project.audio().offset)},
        {QStringLiteral("gfad"), QString::number(m_project.audioFade())},
        {QStringLiteral("gstframe"), flag(titleShown)},
        {QStringLiteral("gformat"), m_context.extension},
        {QStringLiteral("gtext"), flag(textStyled)},
    });
}

qint64 GeneratorThread::workOfEndStep() const
{
    return m_plan.totalWork() / kEndPart + 1;
}

QString GeneratorThread::videoFile(const QString &name) const
{
    return m_cache.file(QStringLiteral("video/%1.%2").arg(name, m_context.extension));
}

void GeneratorThread::waitWhilePaused() const
{
    while (m_paused && !m_context.cancelled)
        QThread::msleep(kPollInterval);
}

void GeneratorThread::fail(const RenderError &error)
{
    const std::lock_guard<std::mutex> locker(m_mutex);
    // Whatever fails after the first failure or after a cancel fails because of it.
    if (!m_context.cancelled && !RenderFailure::comesOfTermination(error))
        m_error = error;
    m_context.cancelled = true;
}

void GeneratorThread::failWithTool(const VideoUtil &util)
{
    fail(RenderFailure::ofTool(util, m_cache.path()));
}

void GeneratorThread::reportProgress(qint64 units)
{
    m_progress.advance(units);
    QMetaObject::invokeMethod(this, &GeneratorThread::onVideoFrameGenerated, Qt::QueuedConnection);
}

void GeneratorThread::reportSlidePainted(int order)
{
    {
        const std::lock_guard<std::mutex> locker(m_mutex);
        m_painted.append(order);
    }
    QMetaObject::invokeMethod(this, &GeneratorThread::onPreviewFrameGenerated,
                              Qt::QueuedConnection);
}

void GeneratorThread::enterStep(Step step)
{
    {
        const std::lock_guard<std::mutex> locker(m_mutex);
        if (m_step >= step)
            return;
        m_step = step;
    }
    emit stepChanged(step);
}

void GeneratorThread::onVideoFrameGenerated()
{
    qint64 frame = 0;
    if (m_progress.takeReport(&frame))
        emit videoFrameGenerated(frame, m_progress.count(), m_context.size);
}

void GeneratorThread::onPreviewFrameGenerated()
{
    QVector<int> painted;
    {
        const std::lock_guard<std::mutex> locker(m_mutex);
        painted.swap(m_painted);
    }
    for (const int order : qAsConst(painted)) {
        const int index = m_plan.slides().at(order).index;
        emit previewFrameGenerated(m_project.items().at(index), index);
    }
}

void GeneratorThread::onTimer()
{
    QString output;
    {
        const std::lock_guard<std::mutex> locker(m_context.outputMutex);
        output.swap(m_context.encoderOutput);
    }
    const int seconds = EncoderProgress::seconds(output);
    if (seconds >= 0) {
        m_progress.setRunPosition(seconds * 1000LL);
        onVideoFrameGenerated();
    }
    watchForStall();
}

void GeneratorThread::watchForStall()
{
    const qint64 value = m_progress.value();
    if (value != m_lastValue || m_paused || !m_sinceMove.isValid()) {
        m_lastValue = value;
        m_warnedAfter = 0;
        m_sinceMove.start();
        return;
    }
    const qint64 stalled = m_sinceMove.elapsed();
    if (stalled - m_warnedAfter < kStallWarning)
        return;
    m_warnedAfter = stalled;
    qCWarning(generatorLog) << "No progress for" << stalled / 1000 << "s";
}

} // namespace velmora
