// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/preview/VideoPlayer.h"

#include "helpers/LogCapture.h"
#include "ui/preview/PreviewProject.h"

#include <QtTest>

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
    void init()
    {
        m_project = std::make_unique<PreviewProject>();
        auto source = std::make_unique<FakeSource>();
        m_source = source.get();
        m_now = 1000;
        m_player = std::make_unique<VideoPlayer>(std::move(source), [this] { return m_now; });
    }

    void stepsAreLimited_data()
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
    void stepsAreLimited()
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

    void endStopsOnce()
    {
        play(2);
        QCOMPARE(m_player->totalDuration(), 5000.0); // 2 s, a transition of 1 s, 2 s
        const QSignalSpy stopped(m_player.get(), &VideoPlayer::stopped);
        for (int i = 0; i < 9; ++i) {
            m_source->deliverAll();
            tick(500);
        }
        QCOMPARE(stopped.size(), 0);
        tick(500, 5);
        m_player->stop();
        QCOMPARE(stopped.size(), 1);
        QVERIFY(m_player->isStopped());
        // And plays again.
        m_player->play();
        m_source->deliverAll();
        tick(20);
        QCOMPARE(m_player->position(), 20.0);
    }

    void fillsAsManyBuffersAsSlides_data()
    {
        QTest::addColumn<int>("slides");
        for (const int slides : {1, 2, 3, 9})
            QTest::addRow("%d slides", slides) << slides;
    }
    void fillsAsManyBuffersAsSlides()
    {
        QFETCH(int, slides);
        const int buffers = qMin(slides, 3);
        play(slides);
        QCOMPARE(m_source->requests.size(), buffers);
        for (int i = 0; i < VideoPlayer::kBuffers; ++i) {
            QCOMPARE(m_player->buffer(i).slide, i < buffers ? i : -1);
            QCOMPARE(m_player->buffer(i).expected >= 1, i < buffers);
            QCOMPARE(m_player->buffer(i).delivered, 0);
        }
    }

    void usedUpBufferIsRefilledThreeOn()
    {
        const LogCapture log;
        play(5);
        m_source->deliverAll();
        tick(500, 4); // 2 s: the first slide is over
        QCOMPARE(m_player->currentBuffer(), 1);
        QCOMPARE(m_player->buffer(0).slide, 3);
        QCOMPARE(m_source->requests.size(), 1);
        QCOMPARE(m_source->requests.first().slide, 3);
        QCOMPARE(log.lines().join(QLatin1Char('|')),
                 QStringLiteral("Fill buffer #0 with item #0|Fill buffer #1 with item #1|"
                                "Fill buffer #2 with item #2|buf #0 finished, moving to next|"
                                "Fill buffer #0 with item #3"));
        for (int i = 0; i < 6 * 3; ++i) {
            m_source->deliverAll();
            tick(500); // three further slides of 3 s
        }
        QCOMPARE(m_player->currentBuffer(), 1); // wrapped from 2 to 0
        QCOMPARE(m_player->buffer(1).slide, 4);
        QCOMPARE(m_player->buffer(0).slide, -1);
    }

    void waitsForTheFirstFrames()
    {
        play(2);
        const QSignalSpy begun(m_player.get(), &VideoPlayer::generatingStarted);
        const QSignalSpy ended(m_player.get(), &VideoPlayer::generatingFinished);
        const QSignalSpy positions(m_player.get(), &VideoPlayer::positionChanged);
        tick(20, 3);
        QCOMPARE(begun.size(), 1);
        QCOMPARE(ended.size(), 0);
        QCOMPARE(positions.size(), 0);
        m_source->deliverAll();
        tick(20);
        QCOMPARE(begun.size(), 1);
        QCOMPARE(ended.size(), 1);
        QCOMPARE(m_player->position(), 20.0);
    }

    void waitsForALateFrame()
    {
        play(2);
        m_source->deliver(1 + 10); // the first slide and ten frames of the transition
        tick(500, 4);
        const QSignalSpy begun(m_player.get(), &VideoPlayer::generatingStarted);
        tick(400);
        QCOMPARE(shown(), qMakePair(1, 0)); // the tenth frame, counted from 0, is not there
        const double reached = m_player->position();
        tick(40, 2);
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

    void pauseKeepsThePosition()
    {
        play(2);
        m_source->deliverAll();
        tick(300);
        m_player->pause();
        const QSignalSpy positions(m_player.get(), &VideoPlayer::positionChanged);
        tick(100, 2);
        QCOMPARE(positions.size(), 0);
        QVERIFY(m_player->isPaused());
        m_player->setPosition(2500);
        m_source->deliverAll();
        QCOMPARE(shown(), qMakePair(1, 12));
        tick(40);
        QCOMPARE(m_player->position(), 2500.0);
        const QSignalSpy started(m_player.get(), &VideoPlayer::started);
        m_player->play();
        tick(30);
        QCOMPARE(started.size(), 1);
        QCOMPARE(m_player->position(), 2530.0);
    }

    void showsTheFrameOfThePosition_data()
    {
        QTest::addColumn<int>("transition");
        QTest::addColumn<double>("position");
        QTest::addColumn<int>("slide");
        QTest::addColumn<int>("frame");
        QTest::newRow("start") << 27 << 0.0 << 0 << 0;
        QTest::newRow("end of the first still") << 27 << 1999.0 << 0 << 0;
        QTest::newRow("first frame of the transition") << 27 << 2000.0 << 1 << 0;
        QTest::newRow("still the first") << 27 << 2039.0 << 1 << 0;
        QTest::newRow("the second") << 27 << 2040.0 << 1 << 1;
        QTest::newRow("last frame of the transition") << 27 << 2999.0 << 1 << 24;
        QTest::newRow("the second still") << 27 << 3000.0 << 1 << 25;
        QTest::newRow("the end") << 27 << 5000.0 << 1 << 25;
        QTest::newRow("beyond the end") << 27 << 9000.0 << 1 << 25;
        QTest::newRow("before the start") << 27 << -3.0 << 0 << 0;
        QTest::newRow("one frame without an effect") << 0 << 2900.0 << 1 << 0;
        QTest::newRow("and one still") << 0 << 3000.0 << 1 << 1;
    }
    void showsTheFrameOfThePosition()
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

    void seekingDropsWhatIsUnderWay()
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

    void holdsNoPictureThatWasPassed()
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

    void countsDroppedFrames()
    {
        play(2);
        m_source->deliverAll();
        tick(500, 4);
        tick(40, 5);
        QCOMPARE(m_player->droppedFrames(), 0);
        tick(120);
        QCOMPARE(m_player->droppedFrames(), 2);
    }

private:
    void play(int slides, int transition = 27)
    {
        m_project->addSlides(slides, transition);
        m_player->setScript(
            PreviewScript::slideshow(*m_project->project, m_project->settings, kSize));
        m_player->play();
    }

    void tick(qint64 elapsed, int times = 1)
    {
        for (int i = 0; i < times; ++i) {
            m_now += elapsed;
            m_player->onTimer();
        }
    }
    /// The slide and the frame of the picture.
    QPair<int, int> shown() const
    {
        const QRgb pixel = m_player->picture().pixel(0, 0);
        return {qRed(pixel), qGreen(pixel)};
    }

    std::unique_ptr<PreviewProject> m_project;
    std::unique_ptr<VideoPlayer> m_player;
    FakeSource *m_source = nullptr;
    qint64 m_now = 0;
};

QTEST_MAIN(VideoPlayerTest)
#include "VideoPlayerTest.moc"
