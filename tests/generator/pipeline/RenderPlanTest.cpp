// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/pipeline/RenderPlan.h"
#include "helpers/Words.h"

#include "app/AppSettings.h"
#include "project/documents/ProjectFile.h"
#include "project/slides/ProjectItemFirst.h"
#include "project/slides/ProjectItemSimple.h"

#include <QtTest>

#include <cstdlib>

using namespace velmora;

namespace
{

constexpr int kRandom = static_cast<int>(TransitionType::Random);

/// Yields the numbers of a list, then zeros.
RenderPlan::Random scripted(QVector<int> numbers)
{
    return [numbers]() mutable { return numbers.isEmpty() ? 0 : numbers.takeFirst(); };
}

} // namespace

class RenderPlanTest : public QObject
{
    Q_OBJECT

    AppSettings m_settings;
    std::unique_ptr<ProjectFile> m_project;

    ProjectItemSimple *add(int transition, const QString &caption = {}, int effect = 27)
    {
        auto *slide = new ProjectItemSimple(QStringLiteral("/photo.jpg"), 3, transition);
        CaptionStyle style = slide->caption();
        style.text = caption;
        style.effect = effect;
        slide->setCaption(style);
        m_project->insertItem(-1, slide);
        return slide;
    }

    RenderPlan plan(const RenderPlan::Random &random) const
    {
        return RenderPlan::make(*m_project, Timeline::ofProject(*m_project, 2), random);
    }

private slots:
    void init()
    {
        m_project = std::make_unique<ProjectFile>(m_settings, ProjectFile::TitleSlide::Omit);
    }

    void drawsAgainWhileTheTypeRepeats()
    {
        for (int i = 0; i < 4; ++i)
            add(kRandom);
        // The numbers 5, 29 and 53 all stand for type 7.
        const RenderPlan made = plan(scripted({5, 29, 53, 6, 6, 23}));
        QCOMPARE(static_cast<int>(made.slides().at(1).type), 7);
        QCOMPARE(static_cast<int>(made.slides().at(2).type), 8);
        QCOMPARE(static_cast<int>(made.slides().at(2).previousType), 7);
        QCOMPARE(static_cast<int>(made.slides().at(3).type), 25);
    }

    void neverDrawsTheTypeOfAFixedSlideBefore()
    {
        add(kRandom);
        add(9);
        add(kRandom);
        const RenderPlan made = plan(scripted({7, 8}));
        QCOMPARE(static_cast<int>(made.slides().at(1).type), 9);
        QCOMPARE(made.slides().at(1).sourceType, 9);
        QCOMPARE(static_cast<int>(made.slides().at(2).type), 10);
        QCOMPARE(made.slides().at(2).sourceType, kRandom);
    }

    void staysInTheRangeOfRandomEffects()
    {
        for (int i = 0; i < 300; ++i)
            add(kRandom, QStringLiteral("x"), kRandom);
        TransitionType previous = TransitionType::None;
        const RenderPlan made = plan(std::rand);
        for (const PlannedSlide &slide : made.slides()) {
            for (const PlannedStage &stage : slide.stages) {
                if (stage.stage.kind == Timeline::StageKind::Still)
                    continue;
                QVERIFY(static_cast<int>(stage.effect) >= kFirstRandomTransition);
                QVERIFY(static_cast<int>(stage.effect) <= kLastRandomTransition);
            }
            QVERIFY(slide.type != previous || slide.index == 0);
            previous = slide.type;
        }
    }

    void paintsOnePictureWhereAllFramesAreAlike()
    {
        add(27);
        add(0, QStringLiteral("text"), 0);
        const PlannedSlide slide = plan(std::rand).slides().at(1);
        QCOMPARE(slide.stages.size(), 3);
        QCOMPARE(slide.pictures(), 3);
        QCOMPARE(slide.frames(), 50 + 50 + 75);
        QVERIFY(slide.captionAppears);
    }

    void namesStagesByTheirSlide()
    {
        m_project->insertItem(-1, new ProjectItemFirst(2));
        qobject_cast<ProjectItemFirst *>(m_project->items().constFirst())->setVisible(false);
        add(5);
        add(5, QStringLiteral("text"));
        const RenderPlan made = plan(std::rand);
        QCOMPARE(made.slides().size(), 2);
        QCOMPARE(made.slides().at(0).stages.constFirst().prefix(), QStringLiteral("_i1"));
        QStringList prefixes;
        for (const PlannedStage &stage : made.slides().at(1).stages)
            prefixes.append(stage.prefix());
        QCOMPARE(prefixes, words("_p2 _t2 _i2"));
        QCOMPARE(made.totalFrames(), 75 + 50 + 50 + 75);
    }
};

QTEST_APPLESS_MAIN(RenderPlanTest)
#include "RenderPlanTest.moc"
