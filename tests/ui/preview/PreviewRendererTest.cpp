// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/preview/PreviewRenderer.h"

#include "generator/transitions/Transition.h"
#include "project/frames/SlideRenderer.h"
#include "project/slides/ProjectItemFirst.h"
#include "ui/preview/PreviewProject.h"

#include <QtTest>

using namespace velmora;

namespace
{

constexpr QSize kSize(320, 180);

struct Delivered {
    int buffId;
    int slide;
    int frame;
    QImage picture;
};

} // namespace

class PreviewRendererTest : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        m_project = std::make_unique<PreviewProject>();
        m_renderer = std::make_unique<PreviewRenderer>();
        m_delivered.clear();
        m_release = true;
        connect(m_renderer.get(), &FrameSource::frameGenerated, this,
                [this](int buffId, int slide, int frame, const QImage &picture) {
                    m_delivered.append({buffId, slide, frame, picture});
                    if (m_release)
                        m_renderer->release(1);
                });
    }
    /// Its thread must not log any more when the test's own log is gone.
    void cleanup() { m_renderer.reset(); }

    void framesAreThePainters_data()
    {
        QTest::addColumn<int>("transition");
        QTest::addColumn<QString>("caption");
        QTest::newRow("cross fade") << 27 << QString();
        QTest::newRow("cross fade, captions") << 27 << "By the lake";
        QTest::newRow("mosaic, captions") << 6 << "By the lake";
        QTest::newRow("rotation") << 8 << QString();
        QTest::newRow("push") << 22 << QString();
        QTest::newRow("none, captions") << 0 << "By the lake";
    }
    void framesAreThePainters()
    {
        QFETCH(int, transition);
        QFETCH(QString, caption);
        const ProjectItem *first = m_project->add(m_project->photo(1), transition, caption);
        const ProjectItem *second = m_project->add(m_project->photo(2), transition, caption);
        QVERIFY(render(slideshow()));

        const QImage bare = SlideRenderer::bareFrame(*second, format());
        const QImage captioned = SlideRenderer::captionedFrame(bare, *second);
        QVector<QImage> expected;
        const auto stage = [&expected](TransitionType type, const QImage &from, const QImage &to) {
            const int frames = type == TransitionType::None ? 1 : 25;
            for (int i = 0; i < frames; ++i) {
                QImage frame;
                renderTransitionFrame(type, from, to, {i, frames}, frame);
                expected.append(frame);
            }
        };
        stage(static_cast<TransitionType>(transition), captionedOf(*first), bare);
        if (!caption.isEmpty())
            stage(TransitionType::CrossFade, bare, captioned);
        expected.append(captioned);

        const int firstFrames = m_delivered.size() - expected.size();
        for (int i = 0; i < expected.size(); ++i) {
            const Delivered &frame = m_delivered.at(firstFrames + i);
            QVERIFY(frame.slide == 1 && frame.buffId == 1 && frame.frame == i);
            QVERIFY2(frame.picture == expected.at(i), qPrintable(QString::number(i)));
        }
    }

    void transitionAloneIsThatOfTheSlideshow()
    {
        m_project->add(m_project->photo(1));
        m_project->add(m_project->photo(2), 11);
        ProjectItem *third = m_project->add(m_project->photo(3), 22, QStringLiteral("Three"));
        QVERIFY(render(slideshow()));
        QVector<QImage> whole;
        for (const Delivered &frame : qAsConst(m_delivered)) {
            if (frame.slide == 2)
                whole.append(frame.picture);
        }
        m_delivered.clear();
        const auto script =
            PreviewScript::transition(*m_project->project, *third, m_project->settings, kSize);
        QCOMPARE(script->slideCount(), 1);
        QCOMPARE(script->offset(), 5000.0);        // 2 s and 3 s before it
        QCOMPARE(script->totalDuration(), 3000.0); // transition, caption, a second of the slide
        QVERIFY(render(script));
        QCOMPARE(m_delivered.size(), whole.size());
        for (int i = 0; i < whole.size(); ++i)
            QVERIFY2(m_delivered.at(i).picture == whole.at(i), qPrintable(QString::number(i)));
    }

    void photosAtTheirOwnSizeKeepTheirShare()
    {
        // Half as wide and high as the video, so half as wide and high as any preview of it.
        m_project->project->setScaleToFit(false);
        m_project->add(m_project->photo(1, {640, 360}));
        QVERIFY(render(slideshow()));
        const QImage &frame = m_delivered.first().picture;
        QCOMPARE(frame.size(), kSize);
        const auto isBlack = [&frame](int x) {
            return frame.pixel(x, kSize.height() / 2) == qRgb(0, 0, 0);
        };
        const int left = kSize.width() / 4;
        const int right = kSize.width() * 3 / 4;
        QVERIFY(isBlack(left - 3) && !isBlack(left + 3));
        QVERIFY(!isBlack(right - 3) && isBlack(right + 3));
    }

    void hiddenTitleIsLeftOut()
    {
        auto *title = new ProjectItemFirst(2);
        title->setVisible(false);
        m_project->project->insertItem(0, title);
        ProjectItem *photo = m_project->add(m_project->photo(1));
        QCOMPARE(slideshow()->slideCount(), 1);
        QCOMPARE(slideshow()->totalDuration(), 2000.0);
        const AppSettings &settings = m_project->settings;
        QVERIFY(!PreviewScript::transition(*m_project->project, *title, settings, kSize));
        QCOMPARE(PreviewScript::transition(*m_project->project, *photo, settings, kSize)->offset(),
                 0.0);
        QVERIFY(render(PreviewScript::still(*m_project->project, *title, settings, kSize)));
        QVERIFY(m_delivered.first().picture == captionedOf(*title));
    }

    void unreadablePhotoIsShownAsSuch()
    {
        m_project->add(m_project->folder.filePath(QStringLiteral("gone.jpg")));
        QVERIFY(render(slideshow()));
        const QImage &frame = m_delivered.first().picture;
        QCOMPARE(frame.size(), kSize);
        QImage black(kSize, QImage::Format_RGB32);
        black.fill(Qt::black);
        QVERIFY(frame != black);
    }

    void givesOutABoundedNumber()
    {
        m_release = false;
        const QSize size(3840, 2160);
        for (int i = 0; i < 3; ++i)
            m_project->add(m_project->photo(i), 22);
        const auto script = slideshow(size);
        ask(script, 3);
        const int limit = PreviewRenderer::heldPictures(size);
        QVERIFY(limit < script->frameCount(1));
        QTRY_COMPARE(m_delivered.size(), limit);
        m_renderer->release(1);
        QTRY_COMPARE(m_delivered.size(), limit + 1);
        QVERIFY(4LL * size.width() * size.height() * limit <=
                qMax(PreviewRenderer::kHeldBytes,
                     4LL * size.width() * size.height() * PreviewRenderer::kFewestHeld));
    }

    void nothingComesAfterCancel()
    {
        m_project->add(m_project->photo(1));
        m_project->add(m_project->photo(2), 22);
        const auto script = slideshow();
        ask(script, 2);
        QTRY_VERIFY(m_delivered.size() > 3);
        m_renderer->cancel();
        m_delivered.clear();
        m_renderer->request(2, script, 1, 25);
        QTRY_VERIFY(!m_delivered.isEmpty());
        QCOMPARE(m_delivered.size(), 1);
        QCOMPARE(m_delivered.first().buffId, 2);
        QCOMPARE(m_delivered.first().frame, 25);
    }

    void endsInTheMiddleOfWork()
    {
        for (int i = 0; i < 3; ++i)
            m_project->add(m_project->photo(i), 6);
        ask(slideshow({1920, 1080}), 3);
        QTRY_VERIFY(!m_delivered.isEmpty());
        m_delivered.clear();
        m_renderer.reset();
        QCoreApplication::processEvents();
        QVERIFY(m_delivered.isEmpty());
    }

    void editingDoesNotReachAScript()
    {
        ProjectItemSimple *slide = m_project->add(m_project->photo(1));
        const auto script = slideshow();
        const QImage before = SlideRenderer::bareFrame(*slide, format());
        slide->setFileName(m_project->photo(2));
        m_project->project.reset();
        QVERIFY(render(script));
        QVERIFY(m_delivered.first().picture == before);
    }

private:
    PreviewScript::Pointer slideshow(const QSize &size = kSize) const
    {
        return PreviewScript::slideshow(*m_project->project, m_project->settings, size);
    }
    void ask(const PreviewScript::Pointer &script, int slides)
    {
        for (int slide = 0; slide < slides; ++slide)
            m_renderer->request(slide, script, slide, 0);
    }

    /// Renders all frames of all slides; false when they do not come.
    bool render(const PreviewScript::Pointer &script)
    {
        int count = 0;
        for (int slide = 0; slide < script->slideCount(); ++slide)
            count += script->frameCount(slide);
        ask(script, script->slideCount());
        return QTest::qWaitFor([&] { return m_delivered.size() == count; }, 20000);
    }

    FrameFormat format() const
    {
        return {kSize, m_project->project->origRatio(), m_project->project->scaleToFit()};
    }

    QImage captionedOf(const ProjectItem &slide) const
    {
        return SlideRenderer::captionedFrame(SlideRenderer::bareFrame(slide, format()), slide);
    }

    std::unique_ptr<PreviewProject> m_project;
    std::unique_ptr<PreviewRenderer> m_renderer;
    QVector<Delivered> m_delivered;
    bool m_release = true;
};

QTEST_MAIN(PreviewRendererTest)
#include "PreviewRendererTest.moc"
