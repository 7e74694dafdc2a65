// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/worker/RemainingTime.h"

#include "app/AppSettings.h"
#include "generator/pipeline/RenderPlan.h"
#include "project/documents/ProjectFile.h"
#include "project/slides/ProjectItemSimple.h"

#include <QtTest>

#include <cmath>

using namespace velmora;

namespace
{

bool isWithin(double share, qint64 value, qint64 expected)
{
    return std::abs(static_cast<double>(value - expected)) <= share * static_cast<double>(expected);
}

/// What real renders took, in ms of processor time.
struct Cost {
    double stillFrame;  // Encoding one.
    double fadeFrame;   // Painting and encoding one.
    double movingFrame; // The same for the other effects.
    double stage;       // Reading the photo and starting the encoder.
};

constexpr double kPaintingShare = 0.1; // of a moving frame's cost

/// Tells the estimate of a render that costs so much how far it is, in small steps, and collects
/// what it foretold.
class PlayedRender
{
public:
    PlayedRender(const RenderPlan &plan, const Cost &cost) : m_plan(plan), m_cost(cost)
    {
        for (const PlannedSlide &slide : plan.slides()) {
            for (const PlannedStage &stage : slide.stages)
                play(stage);
        }
    }

    double total() const { return m_now; } // ms
    /// After this share of the render the total that was foretold stayed within 10 %.
    double settled() const
    {
        double share = 0;
        for (const auto &foretold : m_foretold) {
            if (std::abs(foretold.second / m_now - 1) > 0.1)
                share = foretold.first / m_now;
        }
        return share;
    }

private:
    void play(const PlannedStage &stage)
    {
        const int frames = stage.stage.frameCount;
        double frame = m_cost.stillFrame;
        if (stage.pictures > 1)
            frame = stage.isFade() ? m_cost.fadeFrame : m_cost.movingFrame;
        const double painting = stage.pictures > 1 ? frames * frame * kPaintingShare : 0;
        const double encoding = frames * frame - painting;
        pass(painting + m_cost.stage / 2, stage.pictures * stage.paintingWork());
        pass(encoding + m_cost.stage / 2, stage.encodingWork());
    }

    void pass(double time, qint64 work)
    {
        constexpr int kSteps = 20;
        for (int step = 1; step <= kSteps; ++step) {
            const double now = m_now + time * step / kSteps;
            const auto at = static_cast<qint64>(now);
            m_estimate.update(at, m_work + work * step / kSteps, m_plan.totalWork());
            const qint64 left = m_estimate.remaining(at);
            m_foretold.append({now, left < 0 ? 0 : now + static_cast<double>(left)});
        }
        m_now += time;
        m_work += work;
    }

    const RenderPlan &m_plan;
    const Cost m_cost;
    RemainingTime m_estimate;
    double m_now = 0;
    qint64 m_work = 0;
    QVector<QPair<double, double>> m_foretold; // (time, total), ms
};

} // namespace

class RemainingTimeTest : public QObject
{
    Q_OBJECT
private slots:
    void unknownAtFirstAndWhileNothingMoves()
    {
        RemainingTime time;
        QCOMPARE(time.remaining(0), qint64(-1));
        time.update(0, 0, 1000);
        time.update(500, 10, 1000);
        QCOMPARE(time.remaining(500), qint64(-1));
        RemainingTime stuck;
        for (qint64 now = 0; now <= 10000; now += 100)
            stuck.update(now, 5, 1000);
        QCOMPARE(stuck.remaining(10000), qint64(-1));
    }

    void steadySpeedIsExact()
    {
        RemainingTime time;
        for (qint64 now = 0; now <= 5000; now += 100)
            time.update(now, now / 100, 1000); // 10 frames a second
        QCOMPARE(time.remaining(5000), qint64(95000));
        // Between two updates the clock runs on.
        QCOMPARE(time.remaining(5400), qint64(94600));
    }

    /// Slides of 40 slow frames and 85 fast ones, as real renders have them.
    void settlesOnAlternatingStages()
    {
        constexpr int kSlides = 60;
        constexpr qint64 kSlideTime = 2500;
        constexpr qint64 kCount = kSlides * 125;
        RemainingTime time;
        qint64 now = 0;
        qint64 frame = 0;
        for (int slide = 0; slide < kSlides; ++slide) {
            for (int step = 0; step < 25; ++step) {
                now += 100;
                frame += step < 20 ? 2 : 17;
                time.update(now, frame, kCount);
                const qint64 truth = kSlides * kSlideTime - now;
                if (now > 20000 && truth > 20000)
                    QVERIFY2(isWithin(0.1, time.remaining(now), truth),
                             qPrintable(QStringLiteral("%1 ms instead of %2 after %3")
                                            .arg(time.remaining(now))
                                            .arg(truth)
                                            .arg(now)));
            }
        }
    }

    void settlesOnRealRenders_data()
    {
        QTest::addColumn<double>("stillFrame");
        QTest::addColumn<double>("fadeFrame");
        QTest::addColumn<double>("movingFrame");
        QTest::addColumn<double>("stage");
        QTest::newRow("640x360, original") << 3.9 << 16.4 << 25.0 << 250.0;
        QTest::newRow("640x360, everywhere") << 4.3 << 14.4 << 17.0 << 230.0;
        QTest::newRow("1920x1080, original") << 24.0 << 153.0 << 222.0 << 800.0;
        QTest::newRow("1920x1080, everywhere") << 16.0 << 80.0 << 130.0 << 500.0;
    }

    /// Slides of all lengths and with all effects, from which the kinds of work come in turns.
    void settlesOnRealRenders()
    {
        QFETCH(double, stillFrame);
        QFETCH(double, fadeFrame);
        QFETCH(double, movingFrame);
        QFETCH(double, stage);
        const AppSettings settings;
        ProjectFile project(settings, ProjectFile::TitleSlide::Omit);
        const int times[] = {1, 10, 3, 2, 20, 5, 1, 4}; // s
        for (int i = 0; i < 24; ++i) {
            auto *slide = new ProjectItemSimple(QString(), times[i % 8], i * 5 % kTransitionCount);
            CaptionStyle caption;
            caption.text = i % 3 == 0 ? QStringLiteral("text") : QString();
            slide->setCaption(caption);
            project.insertItem(-1, slide);
        }
        int random = 0;
        const RenderPlan plan = RenderPlan::make(project, Timeline::ofProject(project, 2),
                                                 [&random] { return random += 7; });
        const PlayedRender render(plan, {stillFrame, fadeFrame, movingFrame, stage});
        QVERIFY(render.total() > 40000);
        QVERIFY2(render.settled() < 0.1, qPrintable(QString::number(render.settled())));
    }

    void followsAChangeOfSpeed()
    {
        RemainingTime time;
        qint64 frame = 0;
        qint64 now = 0;
        for (; now < 30000; now += 100)
            time.update(now, frame += 2, 3000);
        for (; now < 90000; now += 100)
            time.update(now, frame += 1, 3000);
        QVERIFY(isWithin(0.1, time.remaining(now), (3000 - frame) * 100));
    }

    void nothingRemainsAtTheEnd()
    {
        RemainingTime time;
        for (qint64 now = 0; now <= 5000; now += 100)
            time.update(now, now / 100, 50);
        QCOMPARE(time.remaining(5000), qint64(0));
        QCOMPARE(time.remaining(9000), qint64(0));
    }
};

QTEST_APPLESS_MAIN(RemainingTimeTest)
#include "RemainingTimeTest.moc"
