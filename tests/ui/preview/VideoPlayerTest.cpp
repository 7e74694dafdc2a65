// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/preview/VideoPlayer.h"

#include "helpers/LogCapture.h"
#include "ui/preview/PreviewProject.h"

#include <QSignalSpy>
#include <QTest>

using namespace velmora;

namespace
{

constexpr QSize kSize(64, 36);
constexpr int kSlideFrames = 26; // of a transition of a second and a still

/// Notes what is asked for, and delivers on request.
class FakeSource : public FrameSource
{
public:
    struct Request {
        int buffId;
        int slide;
        int next;
        int count;
    };
    void request(int buffId, const PreviewScript::Pointer &script, int slide,
                 int firstFrame) override
    {
        requests.append({buffId, slide, firstFrame, script->frameCount(slide)});
    }
    void cancel() override
    {
        requests.clear();
        held = 0;
    }
    void release(int pictures) override { held -= pictures; }

    /// The picture of a frame: its colour tells which it is.
    static QImage picture(int slide, int frame)
    {
        QImage image(kSize, QImage::Format_RGB32);
        image.fill(qRgb(slide, frame, 7));
        return image;
    }
    /// Delivers up to @p count further frames of the oldest requests.
    void deliver(int count)
    {
        while (count > 0 && !requests.isEmpty()) {
            Request &first = requests.first();
            const Request now = first;
            if (++first.next >= first.count)
                requests.removeFirst();
            --count;
            ++held;
            emit frameGenerated(now.buffId, now.slide, now.next, picture(now.slide, now.next));
        }
    }
    void deliverAll() { deliver(100000); }

    QVector<Request> requests;
    int held = 0;
};

} // namespace

class VideoPlayerTest : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void stepsAreLimited_data();
    void stepsAreLimited();
    void endStopsOnce();
    void fillsAsManyBuffersAsSlides_data();
    void fillsAsManyBuffersAsSlides();
    void usedUpBufferIsRefilledThreeOn();
    void waitsForTheFirstFrames();
    void waitsForALateFrame();
    void pauseKeepsThePosition();
    void showsTheFrameOfThePosition_data();
    void showsTheFrameOfThePosition();
    void seekingDropsWhatIsUnderWay();
    void seeksWhilePaused();
    void holdsNoPictureThatWasPassed();
    void countsDroppedFrames();
    void playsAgainAfterTheEnd();
    void notesWhatTheRingDoes();

private:
    void play(int slides, int transition = 27);
    void tick(qint64 elapsed)
    {
        m_now += elapsed;
        m_player->onTimer();
    }
    static QPair<int, int> shown(const QImage &picture)
    {
        const QRgb pixel = picture.pixel(0, 0);
        return {qRed(pixel), qGreen(pixel)};
    }
    QPair<int, int> shown() const { return shown(m_player->picture()); }

    std::unique_ptr<PreviewProject> m_project;
    std::unique_ptr<VideoPlayer> m_player;
    FakeSource *m_source = nullptr;
    qint64 m_now = 0;
};

void VideoPlayerTest::init()
{
    m_project = std::make_unique<PreviewProject>();
    auto source = std::make_unique<FakeSource>();
    m_source = source.get();
    m_now = 1000;
    m_player = std::make_unique<VideoPlayer>(std::move(source), [this] { return m_now; });
}

void VideoPlayerTest::play(int slides, int transition)
{
    m_project->addSlides(slides, transition);
    m_player->setScript(PreviewScript::slideshow(*m_project->project, m_project->settings, kSize));
    m_player->play();
}

void VideoPlayerTest::stepsAreLimited_data()
{
    QTest::addColumn<qint64>("elapsed");
    QTest::addColumn<double>("step");
    QTest::newRow("a tick") << qint64(20) << 20.0;
    QTest::newRow("none") << qint64(0) << 0.0;
    QTest::newRow("the longest") << qint64(500) << 500.0;
    QTest::newRow("just too long") << qint64(501) << 50.0;
    QTest::newRow("two seconds") << qint64(2000) << 50.0;
    QTest::newRow("backwards") << qint64(-1) << 50.0;
}

void VideoPlayerTest::stepsAreLimited()
{
    QFETCH(qint64, elapsed);
    QFETCH(double, step);
    play(2);
    m_source->deliverAll();
    tick(100);
    const QSignalSpy positions(m_player.get(), &VideoPlayer::positionChanged);
    tick(elapsed);
    QCOMPARE(m_player->position(), 100 + step);
    QCOMPARE(positions.size(), 1);
    QCOMPARE(positions.first().first().toDouble(), 100 + step);
}

void VideoPlayerTest::endStopsOnce()
{
    play(2);
    QCOMPARE(m_player->totalDuration(), 5000.0); // 2 s, a transition of 1 s, 2 s
    const QSignalSpy stopped(m_player.get(), &VideoPlayer::stopped);
    for (int i = 0; i < 9; ++i) {
        m_source->deliverAll();
        tick(500);
    }
    QCOMPARE(stopped.size(), 0);
    for (int i = 0; i < 5; ++i)
        tick(500);
    m_player->stop();
    QCOMPARE(stopped.size(), 1);
    QVERIFY(m_player->isStopped());
}

void VideoPlayerTest::fillsAsManyBuffersAsSlides_data()
{
    QTest::addColumn<int>("slides");
    QTest::addColumn<int>("buffers");
    QTest::newRow("one") << 1 << 1;
    QTest::newRow("two") << 2 << 2;
    QTest::newRow("three") << 3 << 3;
    QTest::newRow("many") << 9 << 3;
}

void VideoPlayerTest::fillsAsManyBuffersAsSlides()
{
    QFETCH(int, slides);
    QFETCH(int, buffers);
    play(slides);
    QCOMPARE(m_source->requests.size(), buffers);
    for (int i = 0; i < VideoPlayer::kBuffers; ++i) {
        QCOMPARE(m_player->buffer(i).slide, i < buffers ? i : -1);
        QCOMPARE(m_player->buffer(i).expected >= 1, i < buffers);
        QCOMPARE(m_player->buffer(i).delivered, 0);
    }
}

void VideoPlayerTest::usedUpBufferIsRefilledThreeOn()
{
    play(5);
    m_source->deliverAll();
    for (int i = 0; i < 4; ++i)
        tick(500); // 2 s: the first slide is over
    QCOMPARE(m_player->currentBuffer(), 1);
    QCOMPARE(m_player->buffer(0).slide, 3);
    QCOMPARE(m_source->requests.size(), 1);
    QCOMPARE(m_source->requests.first().slide, 3);
    for (int i = 0; i < 6 * 3; ++i) {
        m_source->deliverAll();
        tick(500); // three further slides of 3 s
    }
    QCOMPARE(m_player->currentBuffer(), 1); // wrapped from 2 to 0
    QCOMPARE(m_player->buffer(1).slide, 4);
    QCOMPARE(m_player->buffer(0).slide, -1);
}

void VideoPlayerTest::waitsForTheFirstFrames()
{
    play(2);
    const QSignalSpy begun(m_player.get(), &VideoPlayer::generatingStarted);
    const QSignalSpy ended(m_player.get(), &VideoPlayer::generatingFinished);
    const QSignalSpy positions(m_player.get(), &VideoPlayer::positionChanged);
    for (int i = 0; i < 3; ++i)
        tick(20);
    QCOMPARE(begun.size(), 1);
    QCOMPARE(ended.size(), 0);
    QCOMPARE(positions.size(), 0);
    m_source->deliverAll();
    tick(20);
    QCOMPARE(begun.size(), 1);
    QCOMPARE(ended.size(), 1);
    QCOMPARE(m_player->position(), 20.0);
}

void VideoPlayerTest::waitsForALateFrame()
{
    play(2);
    m_source->deliver(1 + 10); // the first slide and ten frames of the transition
    for (int i = 0; i < 4; ++i)
        tick(500);
    const QSignalSpy begun(m_player.get(), &VideoPlayer::generatingStarted);
    tick(400);
    QCOMPARE(shown(), qMakePair(1, 0)); // the tenth frame, counted from 0, is not there
    const double reached = m_player->position();
    tick(40);
    tick(40);
    QCOMPARE(begun.size(), 1);
    QCOMPARE(m_player->position(), reached);
    m_source->deliver(1);
    QCOMPARE(shown(), qMakePair(1, 10)); // seen as soon as it comes
    tick(40);
    QCOMPARE(m_player->position(), reached); // but a few more must be there
    m_source->deliver(4);
    tick(40);
    QCOMPARE(m_player->position(), reached + 40);
    QCOMPARE(shown(), qMakePair(1, 11));
}

void VideoPlayerTest::pauseKeepsThePosition()
{
    play(2);
    m_source->deliverAll();
    tick(300);
    m_player->pause();
    const QSignalSpy positions(m_player.get(), &VideoPlayer::positionChanged);
    tick(100);
    tick(100);
    QCOMPARE(positions.size(), 0);
    QVERIFY(m_player->isPaused());
    const QSignalSpy started(m_player.get(), &VideoPlayer::started);
    m_player->play();
    tick(30);
    QCOMPARE(started.size(), 1);
    QCOMPARE(m_player->position(), 330.0);
}

void VideoPlayerTest::showsTheFrameOfThePosition_data()
{
    QTest::addColumn<int>("transition");
    QTest::addColumn<double>("position");
    QTest::addColumn<int>("slide");
    QTest::addColumn<int>("frame");
    const int fade = 27;
    const int none = 0;
    QTest::newRow("start") << fade << 0.0 << 0 << 0;
    QTest::newRow("end of the first still") << fade << 1999.0 << 0 << 0;
    QTest::newRow("first frame of the transition") << fade << 2000.0 << 1 << 0;
    QTest::newRow("still the first") << fade << 2039.0 << 1 << 0;
    QTest::newRow("the second") << fade << 2040.0 << 1 << 1;
    QTest::newRow("last frame of the transition") << fade << 2999.0 << 1 << 24;
    QTest::newRow("the second still") << fade << 3000.0 << 1 << 25;
    QTest::newRow("the end") << fade << 5000.0 << 1 << 25;
    QTest::newRow("beyond the end") << fade << 9000.0 << 1 << 25;
    QTest::newRow("before the start") << fade << -3.0 << 0 << 0;
    QTest::newRow("one frame without an effect") << none << 2900.0 << 1 << 0;
    QTest::newRow("and one still") << none << 3000.0 << 1 << 1;
}

void VideoPlayerTest::showsTheFrameOfThePosition()
{
    QFETCH(int, transition);
    QFETCH(double, position);
    QFETCH(int, slide);
    QFETCH(int, frame);
    play(2, transition);
    m_player->setPosition(position);
    QCOMPARE(m_source->requests.first().slide, slide);
    QCOMPARE(m_source->requests.first().next, frame);
    m_source->deliver(1);
    QCOMPARE(shown(), qMakePair(slide, frame));
}

void VideoPlayerTest::seekingDropsWhatIsUnderWay()
{
    play(4);
    const QVector<FakeSource::Request> old = m_source->requests;
    m_source->deliver(kSlideFrames);
    m_player->setPosition(6000); // in the transition into the third slide
    QCOMPARE(m_player->buffer(0).slide, 2);
    QCOMPARE(m_player->buffer(1).slide, 3);
    QCOMPARE(m_player->buffer(2).slide, -1);
    // A frame of the old filling of this buffer comes late.
    m_player->onFrameGenerated(0, old.first().slide, 0, FakeSource::picture(0, 0));
    QCOMPARE(m_player->buffer(0).delivered, m_source->requests.first().next);
    m_source->deliverAll();
    tick(20);
    QCOMPARE(m_player->position(), 6020.0);
    QCOMPARE(shown().first, 2);
}

void VideoPlayerTest::seeksWhilePaused()
{
    play(3);
    m_source->deliverAll();
    m_player->pause();
    m_player->setPosition(2500);
    m_source->deliverAll();
    QCOMPARE(shown(), qMakePair(1, 12));
    tick(40);
    QCOMPARE(m_player->position(), 2500.0);
}

void VideoPlayerTest::holdsNoPictureThatWasPassed()
{
    play(3);
    m_source->deliverAll();
    int held = m_source->held;
    for (int i = 0; i < 100 && !m_player->isStopped(); ++i) {
        tick(80); // every other frame is passed
        QVERIFY(m_source->held <= held);
        held = m_source->held;
        const FrameBuffer &buffer = m_player->buffer(m_player->currentBuffer());
        const int now = buffer.frameAt(m_player->position());
        for (int frame = 0; frame <= now; ++frame)
            QVERIFY(buffer.frames.at(frame).picture.isNull());
    }
    QCOMPARE(m_source->held, 0);
}

void VideoPlayerTest::countsDroppedFrames()
{
    play(2);
    m_source->deliverAll();
    for (int i = 0; i < 4; ++i)
        tick(500);
    for (int i = 0; i < 5; ++i)
        tick(40);
    QCOMPARE(m_player->droppedFrames(), 0);
    tick(120);
    QCOMPARE(m_player->droppedFrames(), 2);
}

void VideoPlayerTest::playsAgainAfterTheEnd()
{
    play(1);
    m_source->deliverAll();
    for (int i = 0; i < 4; ++i)
        tick(500);
    QVERIFY(m_player->isStopped());
    m_player->play();
    m_source->deliverAll();
    tick(20);
    QCOMPARE(m_player->position(), 20.0);
}

void VideoPlayerTest::notesWhatTheRingDoes()
{
    const LogCapture log;
    play(4);
    m_source->deliverAll();
    for (int i = 0; i < 4; ++i)
        tick(500);
    QCOMPARE(log.lines(), QStringList({
                              QStringLiteral("Fill buffer #0 with item #0"),
                              QStringLiteral("Fill buffer #1 with item #1"),
                              QStringLiteral("Fill buffer #2 with item #2"),
                              QStringLiteral("buf #0 finished, moving to next"),
                              QStringLiteral("Fill buffer #0 with item #3"),
                          }));
}

QTEST_MAIN(VideoPlayerTest)
#include "VideoPlayerTest.moc"
