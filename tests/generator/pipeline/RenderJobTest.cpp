// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/pipeline/RenderJob.h"
#include "generator/transitions/Transition.h"
#include "helpers/RenderFixture.h"
#include "helpers/VideoProbe.h"
#include "helpers/Words.h"
#include "project/documents/Timeline.h"
#include "project/frames/SlideRenderer.h"
#include "project/slides/ProjectItemFirst.h"
#include "project/slides/ProjectItemSimple.h"

#include <QtTest>

#include <cmath>

using namespace velmora;

namespace
{

ProjectItemSimple *photoSlide(const RenderRequest &request, int index)
{
    return qobject_cast<ProjectItemSimple *>(request.project->items().at(index));
}

/// What the video should show, frame by frame; all effects must be fixed ones.
QVector<QImage> expectedFrames(const RenderRequest &request)
{
    const ProjectFile &project = *request.project;
    const FrameFormat format{project.resolution(), project.origRatio(), project.scaleToFit()};
    const Timeline timeline = Timeline::ofProject(project, request.transitionSeconds);
    QVector<QImage> bare;
    QVector<QImage> captioned;
    for (const ProjectItem *item : project.items()) {
        bare.append(SlideRenderer::bareFrame(*item, format));
        captioned.append(SlideRenderer::captionedFrame(bare.constLast(), *item));
    }
    QVector<QImage> frames;
    for (const Timeline::Stage &stage : timeline.stages()) {
        const auto *photo =
            qobject_cast<const ProjectItemSimple *>(project.items().at(stage.slide));
        for (int frame = 0; frame < stage.frameCount; ++frame) {
            QImage image;
            const TransitionPosition position{frame, stage.frameCount};
            if (stage.kind == Timeline::StageKind::Picture)
                renderTransitionFrame(transitionFromInt(photo->transition()),
                                      captioned.at(stage.previousSlide), bare.at(stage.slide),
                                      position, image);
            else if (stage.kind == Timeline::StageKind::Caption)
                renderTransitionFrame(transitionFromInt(photo->caption().effect),
                                      bare.at(stage.slide), captioned.at(stage.slide), position,
                                      image);
            else
                image = captioned.at(stage.slide);
            frames.append(image.copy());
        }
    }
    return frames;
}

} // namespace

/// Whole renders of tiny slideshows.
class RenderJobTest : public QObject
{
    Q_OBJECT

    RenderFixture m_fixture;
    QStringList m_photos;

    /// Three slides: a wipe into the second, which has a caption; "None" into the third.
    RenderRequest variedRequest(const QString &outputFile) const
    {
        RenderRequest request = m_fixture.request(m_photos, outputFile);
        photoSlide(request, 1)->setTransition(static_cast<int>(TransitionType::WipeLeftToRight));
        CaptionStyle style = photoSlide(request, 1)->caption();
        style.text = QStringLiteral("Hello");
        photoSlide(request, 1)->setCaption(style);
        photoSlide(request, 2)->setTransition(static_cast<int>(TransitionType::None));
        return request;
    }

    static void compareFrames(const QString &file, const QVector<QImage> &expected,
                              double tolerance)
    {
        const QVector<QImage> frames = VideoProbe::frames(file, expected.constFirst().size());
        QCOMPARE(frames.size(), expected.size());
        for (int i = 0; i < frames.size(); ++i) {
            const double difference = VideoProbe::meanDifference(frames.at(i), expected.at(i));
            QVERIFY2(difference < tolerance,
                     qPrintable(QStringLiteral("frame %1 differs by %2").arg(i).arg(difference)));
        }
    }

    /// Renders what must succeed.
    RenderOutcome render(RenderRequest request) const
    {
        RenderOutcome outcome = m_fixture.render(std::move(request));
        [&outcome] {
            QVERIFY2(outcome.kind == RenderOutcome::Finished, qPrintable(outcome.error.text));
        }();
        return outcome;
    }

private slots:
    void initTestCase()
    {
        for (int i = 0; i < 3; ++i)
            m_photos.append(m_fixture.photo(QStringLiteral("it's 100%d %s 写真 %1.jpg").arg(i), i));
    }

    void rendersEveryFrame_data()
    {
        QTest::addColumn<QString>("format");
        QTest::addColumn<bool>("parallel");
        for (const char *format : {"mp4", "avi", "mov", "wmv", "webm", "mkv"}) {
            QTest::addRow("%s in order", format) << QString::fromLatin1(format) << false;
            QTest::addRow("%s parallel", format) << QString::fromLatin1(format) << true;
        }
    }
    void rendersEveryFrame()
    {
        QFETCH(QString, format);
        QFETCH(bool, parallel);
        RenderRequest request =
            variedRequest(m_fixture.output(QStringLiteral("it's 100%d %s Übung Ελλάδα.") + format));
        request.parallel = parallel;
        request.project->setAudio(
            {{{m_fixture.sound(QStringLiteral("it's 100%d ü.wav"), 9), {}}}, 0});
        const QVector<QImage> expected = expectedFrames(request);
        const RenderOutcome outcome = render(std::move(request));
        QCOMPARE(outcome.endings, 1);
        QCOMPARE(VideoProbe::frameCount(outcome.fileName), expected.size());
        QCOMPARE(VideoProbe::decodingErrors(outcome.fileName), QString());
        const double length = expected.size() / 25.0;
        QVERIFY(std::abs(VideoProbe::soundLength(outcome.fileName) - length) < 0.15);
        compareFrames(outcome.fileName, expected, 3.0);
        QCOMPARE(m_fixture.leftovers(), QStringList());
    }

    void followsTheProfile()
    {
        RenderRequest request = variedRequest(m_fixture.output(QStringLiteral("everywhere.mp4")));
        request.profile = OutputProfile::PlaysEverywhere;
        const QVector<QImage> expected = expectedFrames(request);
        const RenderOutcome outcome = render(std::move(request));
        compareFrames(outcome.fileName, expected, 3.0);
    }

    void progressRisesToTheEnd()
    {
        for (const bool parallel : {false, true}) {
            RenderRequest request = variedRequest(m_fixture.output(QStringLiteral("p.mp4")));
            request.parallel = parallel;
            const RenderOutcome outcome = render(std::move(request));
            QVERIFY(outcome.progress.size() > 3);
            qint64 last = -1;
            for (const auto &told : outcome.progress) {
                QVERIFY(told.first > last);
                QCOMPARE(told.second, outcome.progress.constFirst().second);
                last = told.first;
            }
            QCOMPARE(last, outcome.progress.constFirst().second);
            QCOMPARE(outcome.stages, words("check frames segments join sound multiplex"));
        }
    }

    void rendersOneSlideWithoutSound()
    {
        RenderRequest request =
            m_fixture.request(m_photos.mid(0, 1), m_fixture.output(QStringLiteral("one.mp4")));
        const RenderOutcome outcome = render(std::move(request));
        QCOMPARE(VideoProbe::frameCount(outcome.fileName), 25);
        QCOMPARE(VideoProbe::soundLength(outcome.fileName), 0.0);
    }

    void evensOddSizes()
    {
        RenderRequest request =
            m_fixture.request(m_photos.mid(0, 2), m_fixture.output(QStringLiteral("odd.mp4")));
        request.project->setResolution({161, 91});
        const RenderOutcome outcome = render(std::move(request));
        QCOMPARE(VideoProbe::frames(outcome.fileName, {162, 92}).size(), 75);
    }

    void rendersTheTitleSlideAndSkipsAHiddenOne()
    {
        for (const bool visible : {true, false}) {
            RenderRequest request =
                m_fixture.request(m_photos.mid(0, 1), m_fixture.output(QStringLiteral("t.mp4")));
            auto *title = new ProjectItemFirst(2);
            title->setVisible(visible);
            request.project->insertItem(0, title);
            const RenderOutcome outcome = render(std::move(request));
            // The title's caption appears for a second, stays for two, and fades to the photo.
            QCOMPARE(VideoProbe::frameCount(outcome.fileName), visible ? 25 * 5 : 25);
        }
    }

    void loopsShortMusic()
    {
        RenderRequest request =
            m_fixture.request(m_photos, m_fixture.output(QStringLiteral("l.mp4")));
        request.project->setAudio({{{m_fixture.sound(QStringLiteral("short.wav"), 1), {}}}, 0});
        request.project->setAudioLoop(true);
        const RenderOutcome outcome = render(std::move(request));
        QVERIFY(std::abs(VideoProbe::soundLength(outcome.fileName) - 5.0) < 0.15);
    }
};

QTEST_MAIN(RenderJobTest)
#include "RenderJobTest.moc"
