// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/preview/VideoPlayer.h"

#include "ui/UiLog.h"
#include "ui/preview/PreviewRenderer.h"
#include "ui/preview/Spinner.h"

#include <algorithm>
#include <chrono>

namespace velmora
{

namespace
{

constexpr int kTick = 20;              // ms: half a frame
constexpr double kLongestStep = 500;   // ms
constexpr double kStepAfterStall = 50; // ms
constexpr int kLead = 5; // frames: what the clock waits for, so that it does not stall again soon

qint64 wallTime()
{
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

} // namespace

VideoPlayer::VideoPlayer(QWidget *parent)
    : VideoPlayer(std::make_unique<PreviewRenderer>(), wallTime, parent)
{
}

VideoPlayer::VideoPlayer(std::unique_ptr<FrameSource> source, Clock clock, QWidget *parent)
    : QWidget(parent), m_source(std::move(source)), m_clock(std::move(clock)),
      m_spinner(new Spinner(this))
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
    m_timer.setInterval(kTick);
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &VideoPlayer::onTimer);
    connect(m_source.get(), &FrameSource::frameGenerated, this, &VideoPlayer::onFrameGenerated);
}

VideoPlayer::~VideoPlayer() = default;

double VideoPlayer::totalDuration() const
{
    return m_script ? m_script->totalDuration() : 0;
}

void VideoPlayer::setScript(const PreviewScript::Pointer &script, double position)
{
    m_script = script;
    m_position = std::clamp(position, 0.0, totalDuration());
    if (!script)
        m_picture = QImage();
    restart();
    update();
}

void VideoPlayer::setPosition(double position)
{
    m_position = std::clamp(position, 0.0, totalDuration());
    restart();
    emit positionChanged(m_position);
}

void VideoPlayer::play()
{
    if (!m_script)
        return;
    if (isStopped() && m_position >= totalDuration())
        setPosition(0);
    m_paused = false;
    runClock();
    emit started();
}

void VideoPlayer::pause()
{
    if (!m_script)
        return;
    m_paused = true;
    runClock();
}

void VideoPlayer::runClock()
{
    m_lastTick = m_clock();
    if (isStopped())
        m_timer.start();
}

void VideoPlayer::stop()
{
    if (isStopped())
        return;
    m_timer.stop();
    m_paused = false;
    m_generating = false;
    updateSpinner();
    emit stopped();
}

void VideoPlayer::restart()
{
    m_source->cancel();
    for (FrameBuffer &buffer : m_ring)
        buffer = FrameBuffer();
    m_current = 0;
    m_wanted = -1;
    m_pending = false;
    if (m_script) {
        const auto [slide, frame] = m_script->frameAt(m_position);
        for (int i = 0; i < kBuffers; ++i)
            fillBuffer(i, slide + i, i == 0 ? frame : 0);
        m_wanted = frame;
        m_pending = true;
    }
    updateSpinner();
}

void VideoPlayer::fillBuffer(int buffId, int slide, int firstFrame)
{
    FrameBuffer &buffer = m_ring.at(static_cast<size_t>(buffId));
    buffer = FrameBuffer();
    if (slide >= m_script->slideCount())
        return;
    qCDebug(lcUi).nospace() << "Fill buffer #" << buffId << " with item #" << slide;
    const int count = m_script->frameCount(slide);
    buffer.slide = slide;
    buffer.frames.resize(count);
    for (int i = 0; i < count; ++i) {
        const PreviewScript::FrameTime time = m_script->frameTime(slide, i);
        buffer.frames[i].start = time.start;
        buffer.frames[i].duration = time.duration;
    }
    buffer.delivered = firstFrame;
    buffer.expected = std::max(std::min(count, firstFrame + kLead), 1);
    m_source->request(buffId, m_script, slide, firstFrame);
}

void VideoPlayer::onFrameGenerated(int buffId, int itemIndex, int frame, const QImage &pixmap)
{
    FrameBuffer &buffer = m_ring.at(static_cast<size_t>(buffId));
    if (buffer.slide != itemIndex || buffer.delivered != frame || frame >= buffer.frames.size())
        return;
    buffer.frames[frame].picture = pixmap;
    ++buffer.delivered;
    if (buffId != m_current)
        return;
    if (frame == m_wanted) {
        take(buffer.frames[frame]);
    } else if (frame < m_wanted) {
        buffer.frames[frame].picture = QImage();
        m_source->release(1);
    }
}

void VideoPlayer::onTimer()
{
    const double elapsed = takeElapsed();
    if (!current().isComplete()) {
        if (!m_generating) {
            m_generating = true;
            updateSpinner();
            emit generatingStarted();
        }
        return;
    }
    if (m_generating) {
        m_generating = false;
        updateSpinner();
        emit generatingFinished();
    }
    if (m_paused)
        return;
    m_position += elapsed;
    emit positionChanged(m_position);
    if (m_position >= totalDuration()) {
        stop();
        return;
    }
    findFrame();
}

double VideoPlayer::takeElapsed()
{
    const qint64 now = m_clock();
    const auto elapsed = static_cast<double>(now - m_lastTick);
    m_lastTick = now;
    return elapsed < 0 || elapsed > kLongestStep ? kStepAfterStall : elapsed;
}

void VideoPlayer::findFrame()
{
    int frame = current().frameAt(m_position);
    if (frame < 0) {
        moveToNextBuffer();
        frame = current().frameAt(m_position);
    }
    if (frame >= 0 && frame != m_wanted)
        showFrame(frame);
}

void VideoPlayer::moveToNextBuffer()
{
    FrameBuffer &buffer = current();
    qCDebug(lcUi).nospace() << "buf #" << m_current << " finished, moving to next";
    const int next = buffer.slide + kBuffers;
    m_dropped += std::max(buffer.frames.size() - 1 - m_wanted, 0);
    clearBuffer(buffer);
    fillBuffer(m_current, next, 0);
    m_current = (m_current + 1) % kBuffers;
    m_wanted = -1;
}

void VideoPlayer::clearBuffer(FrameBuffer &buffer)
{
    const auto held =
        std::count_if(buffer.frames.cbegin(), buffer.frames.cend(),
                      [](const FrameBuffer::Frame &frame) { return !frame.picture.isNull(); });
    m_source->release(static_cast<int>(held));
    buffer = FrameBuffer();
}

void VideoPlayer::showFrame(int frame)
{
    FrameBuffer &buffer = current();
    m_dropped += frame - m_wanted - 1;
    int passed = 0;
    for (int i = std::max(m_wanted, 0); i < frame; ++i) {
        if (buffer.frames.at(i).picture.isNull())
            continue;
        buffer.frames[i].picture = QImage();
        ++passed;
    }
    if (passed > 0)
        m_source->release(passed);
    m_wanted = frame;
    if (frame < buffer.delivered) {
        take(buffer.frames[frame]);
        return;
    }
    buffer.expected = std::min(frame + kLead, buffer.frames.size());
    m_pending = true;
    updateSpinner();
}

void VideoPlayer::take(FrameBuffer::Frame &frame)
{
    m_picture = frame.picture;
    frame.picture = QImage();
    m_source->release(1);
    m_pending = false;
    updateSpinner();
    update();
}

void VideoPlayer::setWaiting(bool waiting)
{
    m_waiting = waiting;
    updateSpinner();
    update();
}

void VideoPlayer::updateSpinner()
{
    m_spinner->setTurning(m_pending || m_generating || m_waiting);
}

QSize VideoPlayer::frameSize(const QSize &video) const
{
    const QSize device = size() * devicePixelRatioF();
    return video.scaled(device, Qt::KeepAspectRatio).expandedTo({2, 2});
}

} // namespace velmora
