// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/preview/PreviewWidget.h"

#include "helpers/LogCapture.h"
#include "helpers/MediaSamples.h"
#include "project/frames/SlideRenderer.h"
#include "ui/model/ProjectEditor.h"
#include "ui/preview/PreviewProject.h"
#include "ui/preview/VideoPlayer.h"

#include <QLabel>
#include <QSlider>
#include <QToolButton>
#include <QtTest>

using namespace velmora;

using Edit = std::function<void(ProjectEditor &, const QVector<ProjectItem *> &)>;
Q_DECLARE_METATYPE(Edit)

class PreviewWidgetTest : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        m_project = std::make_unique<PreviewProject>();
        qputenv("VELMORA_DATA_DIR",
                QFile::encodeName(m_project->folder.filePath(QStringLiteral("data"))));
        m_slides = {m_project->add(m_project->photo(1)),
                    m_project->add(m_project->photo(2), 22, QStringLiteral("By the lake")),
                    m_project->add(m_project->photo(3), 0)};
        for (ProjectItem *slide : qAsConst(m_slides))
            slide->setTime(1);
        m_editor = std::make_unique<ProjectEditor>(m_project->settings);
        m_editor->setProject(m_project->project.get());
        show();
    }

    void cleanup()
    {
        m_widget.reset();
        m_editor.reset();
        m_project.reset();
    }

    void showsTheSelectedSlide()
    {
        QTRY_VERIFY(player()->picture() == captioned(*m_slides.at(0)));
        QCOMPARE(title(), QStringLiteral("Full preview"));
        m_widget->setSlide(m_slides.at(1));
        QTRY_VERIFY(player()->picture() == captioned(*m_slides.at(1)));
        QCOMPARE(title(), QStringLiteral("Preview transition to slide 2"));
        QCOMPARE(time(), QStringLiteral("00:00"));
        const LogCapture log;
        m_widget->setSlide(nullptr);
        QVERIFY(log.lines().contains(QStringLiteral("set m_Item to nullptr")));
        QCOMPARE(title(), QStringLiteral("Full preview"));
        m_widget->setSlide(m_slides.at(2));
        QVERIFY(child<QWidget>("btnRepeat")->isEnabled());
        m_editor->removeSlides({m_slides.at(2)});
        QCOMPARE(title(), QStringLiteral("Full preview"));
        QVERIFY(!child<QWidget>("btnRepeat")->isEnabled());
        QTRY_VERIFY(player()->picture() == captioned(*m_slides.at(0)));
    }

    void playsTheSlideshowToItsEnd()
    {
        const LogCapture log;
        const QSignalSpy stopped(player(), &VideoPlayer::stopped);
        click("btnPreview");
        QVERIFY(m_widget->isPlaying());
        QTRY_VERIFY(time() == QLatin1String("00:03"));
        QVERIFY(qAbs(child<QSlider>("slDuration")->value() - 3000) < 1000);
        QTRY_COMPARE(stopped.size(), 1);
        QCOMPARE(child<QSlider>("slDuration")->maximum(), 6000);
        QCOMPARE(time(), QStringLiteral("00:00"));
        QVERIFY(!m_widget->isPlaying());
        QVERIFY(log.lines().contains(QStringLiteral("Stopped!")));
    }

    void playsTheTransitionAndRepeatsIt()
    {
        m_widget->setSlide(m_slides.at(1));
        QCOMPARE(child<QSlider>("slDuration")->maximum(), 3000);
        const QSignalSpy started(player(), &VideoPlayer::started);
        const QSignalSpy stopped(player(), &VideoPlayer::stopped);
        m_widget->previewSlide();
        QTRY_COMPARE(stopped.size(), 1);
        QTRY_VERIFY(player()->picture() == captioned(*m_slides.at(1)));
        click("btnRepeat");
        QTRY_COMPARE(started.size(), 2);
        QCOMPARE(title(), QStringLiteral("Preview transition to slide 2"));
        QVERIFY(m_widget->isPlaying());
    }

    void stopButtonStops()
    {
        QVERIFY(!child<QWidget>("btnStop")->isEnabled());
        click("btnPreview");
        QTRY_VERIFY(player()->position() > 100);
        click("btnStop");
        QVERIFY(!m_widget->isPlaying());
        QCOMPARE(time(), QStringLiteral("00:00"));
        // Pressed before the clock has begun.
        const QSignalSpy started(player(), &VideoPlayer::started);
        click("btnPreview");
        click("btnStop");
        QVERIFY(!m_widget->isPlaying());
        QCoreApplication::processEvents();
        QCOMPARE(started.size(), 0);
    }

    void seeksByClickOnTheSlider()
    {
        auto *slider = child<QSlider>("slDuration");
        const LogCapture log;
        QTest::mouseClick(slider, Qt::LeftButton, {}, slider->rect().center());
        QVERIFY2(qAbs(player()->position() - 3000) < 100,
                 qPrintable(QString::number(player()->position())));
        QVERIFY(player()->isPaused());
        QCOMPARE(time(),
                 player()->position() < 3000 ? QStringLiteral("00:02") : QStringLiteral("00:03"));
        QVERIFY(log.lines().join(QLatin1Char('\n')).contains(QLatin1String("slider moved to")));
        click("btnPlay");
        QTRY_VERIFY(player()->position() > 3200);
    }

    void keysControlIt()
    {
        player()->setFocus();
        QTest::keyClick(player(), Qt::Key_Space);
        QTRY_VERIFY(player()->position() > 0);
        QTest::keyClick(player(), Qt::Key_Space);
        QVERIFY(player()->isPaused());
        player()->setPosition(2000);
        QTest::keyClick(player(), Qt::Key_Right);
        QCOMPARE(player()->position(), 2300.0);
        QTest::keyClick(player(), Qt::Key_Left);
        QCOMPARE(player()->position(), 2000.0);
        child<QSlider>("slDuration")->setFocus();
        QTest::keyClick(child<QSlider>("slDuration"), Qt::Key_Right);
        QCOMPARE(player()->position(), 2300.0);
        QVERIFY(!child<QToolButton>("btnMute")->isChecked());
        QTest::keyClick(child<QSlider>("slDuration"), Qt::Key_M);
        QVERIFY(child<QToolButton>("btnMute")->isChecked());
    }

    void clickOnThePictureAsksForThePreview()
    {
        const QSignalSpy clicked(m_widget.get(), &PreviewWidget::previewClicked);
        click("player");
        QCOMPARE(clicked.size(), 1);
        click("btnPreview");
        QTRY_VERIFY(player()->position() > 0);
        click("player");
        QCOMPARE(clicked.size(), 1);
        QVERIFY(player()->isPaused() && m_widget->isPlaying());
        click("btnPlay");
        QVERIFY(!player()->isPaused());
        click("btnPlay");
        QVERIFY(player()->isPaused());
    }

    void selectingDoesNotInterruptASlideshow()
    {
        m_widget->playFull();
        QTRY_VERIFY(player()->position() > 0);
        m_widget->setSlide(m_slides.at(1));
        QVERIFY(m_widget->isPlaying());
        QCOMPARE(title(), QStringLiteral("Full preview"));
        m_widget->previewSlide();
        QCOMPARE(title(), QStringLiteral("Preview transition to slide 2"));
        m_widget->setSlide(m_slides.at(0));
        QVERIFY(!m_widget->isPlaying());
    }

    void editsWhilePlaying_data()
    {
        QTest::addColumn<Edit>("edit");
        QTest::addColumn<bool>("goesOn");
        QTest::addColumn<int>("length");
        QTest::newRow("time") << Edit([](auto &editor, auto &slides) { editor.setTime(slides, 3); })
                              << true << 12000;
        QTest::newRow("length of transitions")
            << Edit([](auto &editor, auto &) { editor.setTransitionSeconds(2); }) << true << 9000;
        QTest::newRow("delete") << Edit([](auto &editor, auto &slides) {
            editor.removeSlides({slides.at(2)});
        }) << false << 4000;
        QTest::newRow("move") << Edit([](auto &editor, auto &slides) {
            editor.moveSlides({slides.at(2)}, 0);
        }) << false << 6000;
    }
    void editsWhilePlaying()
    {
        QFETCH(Edit, edit);
        QFETCH(bool, goesOn);
        QFETCH(int, length);
        m_widget->playFull();
        QTRY_VERIFY(player()->position() > 100);
        edit(*m_editor, m_slides);
        QTRY_COMPARE(child<QSlider>("slDuration")->maximum(), length);
        QCOMPARE(m_widget->isPlaying(), goesOn);
        if (goesOn)
            QVERIFY(player()->position() > 100);
    }

    void withoutAProjectNothingPlays()
    {
        m_editor->setProject(nullptr);
        m_widget->playFull();
        m_widget->previewSlide();
        QVERIFY(!m_widget->isPlaying());
        QVERIFY(player()->picture().isNull());
        QVERIFY(!child<QWidget>("btnPlay")->isEnabled());
        QTest::keyClick(player(), Qt::Key_Space);
        QTest::keyClick(player(), Qt::Key_Right);
        QVERIFY(!m_widget->isPlaying());
    }

    void fullSizeKeepsPlaying_data()
    {
        QTest::addColumn<bool>("closed");
        QTest::newRow("Escape") << false;
        QTest::newRow("closed by the desktop") << true;
    }
    void fullSizeKeepsPlaying()
    {
        QFETCH(bool, closed);
        m_widget->playFull();
        QTRY_VERIFY(player()->position() > 0);
        const QSize small = player()->size();
        click("btnFullSize");
        QTRY_VERIFY(player()->window()->isFullScreen());
        QTRY_COMPARE(player()->script()->format().size, player()->frameSize({1280, 720}));
        QVERIFY(player()->width() > small.width());
        QVERIFY(m_widget->isPlaying());
        if (closed)
            player()->window()->close();
        else
            QTest::keyClick(player(), Qt::Key_Escape);
        QTRY_COMPARE(player()->window(), m_widget.get());
        QTRY_VERIFY(player()->isVisible());
        QTRY_COMPARE(player()->size(), small);
        QVERIFY(m_widget->isPlaying());
    }

    void volumeIsRemembered()
    {
        auto *volume = child<QSlider>("slVolume");
        volume->setFocus();
        for (int i = 0; i < 3; ++i)
            QTest::keyClick(volume, Qt::Key_Left);
        const int chosen = volume->value();
        QVERIFY(chosen < 80);
        click("btnMute");
        m_widget.reset();
        show();
        QCOMPARE(child<QSlider>("slVolume")->value(), chosen);
        QVERIFY(child<QToolButton>("btnMute")->isChecked());
        // Turning the volume means wanting to hear something.
        QTest::keyClick(child<QSlider>("slVolume"), Qt::Key_Right);
        QVERIFY(!child<QToolButton>("btnMute")->isChecked());
    }

    void playsWithMusic()
    {
        const QString tone = m_project->folder.filePath(QStringLiteral("tone.wav"));
        QVERIFY(MediaSamples::makeTone(tone, {440, 2, 44100, 2}));
        m_editor->addAudio({{tone, QString()}}, -1);
        const LogCapture log;
        const auto logged = [&log](const char *text) {
            return log.lines().filter(QLatin1String(text)).size();
        };
        m_widget->playFull();
        QTRY_VERIFY(player()->position() > 200);
        QTRY_VERIFY(logged("load sound result =") == 1);
        QVERIFY(logged("VideoPlayerWidget::updateAudio") == 1);
        QTRY_VERIFY(logged("(VideoPlayerWidget) m_SoundPlayer->play, m_AudioPos=") >= 1);
        QVERIFY(!child<QLabel>("lblSoundError")->isVisible());

        m_editor->addAudio({{QStringLiteral("/gone.wav"), QString()}}, -1);
        QTRY_VERIFY(child<QLabel>("lblSoundError")->isVisible());
        QVERIFY(child<QLabel>("lblSoundError")->text().contains(QLatin1String("gone.wav")));
        QVERIFY(m_widget->isPlaying());
    }

    void endsWhilePlaying()
    {
        const auto threads = [] {
            return QDir(QStringLiteral("/proc/self/task")).entryList().size();
        };
        m_widget.reset();
        const int before = threads();
        show();
        m_widget->playFull();
        QTRY_VERIFY(player()->position() > 0);
        m_widget.reset();
        // Threads of pools may have ended besides.
        QTRY_VERIFY(threads() <= before);
    }

private:
    template <typename T> T *child(const char *name) const
    {
        return m_widget->findChild<T *>(QLatin1String(name));
    }
    VideoPlayer *player() const { return child<VideoPlayer>("player"); }
    QString title() const { return child<QLabel>("lblTitle")->text(); }
    QString time() const { return child<QLabel>("lblTime")->text(); }
    void click(const char *name) const { QTest::mouseClick(child<QWidget>(name), Qt::LeftButton); }

    void show()
    {
        m_widget = std::make_unique<PreviewWidget>(*m_editor, m_project->settings);
        m_widget->resize(360, 420);
        m_widget->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_widget.get()));
    }

    QImage captioned(const ProjectItem &slide) const
    {
        const FrameFormat format{player()->frameSize({1280, 720}), true, true};
        return SlideRenderer::captionedFrame(SlideRenderer::bareFrame(slide, format), slide);
    }

    std::unique_ptr<PreviewProject> m_project;
    std::unique_ptr<ProjectEditor> m_editor;
    std::unique_ptr<PreviewWidget> m_widget;
    QVector<ProjectItem *> m_slides;
};

QTEST_MAIN(PreviewWidgetTest)
#include "PreviewWidgetTest.moc"
