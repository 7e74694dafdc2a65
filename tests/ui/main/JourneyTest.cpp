// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Identity.h"
#include "chrome/RowsMimeData.h"
#include "helpers/Drop.h"
#include "helpers/VideoProbe.h"
#include "project/documents/Timeline.h"
#include "project/frames/SlideRenderer.h"
#include "ui/editor/CreatePanel.h"
#include "ui/main/MainViewFixture.h"
#include "ui/preview/PreviewWidget.h"

#include <QLabel>
#include <QTableView>
#include <QTextEdit>

#include <cmath>

using namespace velmora;

/// One way through the whole program, as a user takes it: from photos and music on the desktop to
/// the finished video.
class JourneyTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { applyIdentity(); }

    void fromPhotosToTheVideo()
    {
        m.settings.resolution = {320, 240};
        m.settings.defaultTime = 1;
        m.settings.transitionTime = 1;
        m.settings.speedGeneration = true;
        m.show();
        m.view->resize(1400, 900);
        for (const auto step :
             {&JourneyTest::addPhotos, &JourneyTest::arrange, &JourneyTest::writeCaption,
              &JourneyTest::listenToMusic, &JourneyTest::render, &JourneyTest::checkVideo}) {
            (this->*step)();
            if (QTest::currentTestFailed())
                return;
        }
        QCOMPARE(m.dialogs.failure(), QString());
    }

private:
    void dropFiles(const QStringList &files, const char *widget)
    {
        auto *target = m.child<QWidget>(widget);
        if (auto *table = qobject_cast<QTableView *>(target))
            target = table->viewport();
        QVERIFY(dropFilesOn(target, files, target->rect().center()));
    }

    /// Eight photos, the first four of them twice.
    void addPhotos()
    {
        const QDir folder(QStringLiteral(VELMORA_EXAMPLES "/photos"));
        QStringList names = folder.entryList(QDir::Files, QDir::Name);
        QCOMPARE(names.size(), 8);
        names += names.mid(0, 4);
        QStringList files;
        for (const QString &name : qAsConst(names))
            files.append(folder.filePath(name));
        dropFiles(files, "dropArea");
        QTRY_COMPARE(m.photos(), names);
        QCOMPARE(m.view->page(), MainView::Editor);
        m_names = names;
    }

    /// Drags the third photo to the front and turns the second one.
    void arrange()
    {
        select(3);
        auto *table = m.child<QTableView>("tableView");
        RowsMimeData data(table, {3});
        const QRect first = table->visualRect(table->model()->index(1, 0));
        QVERIFY(dropOn(table->viewport(), data, first.topLeft() + QPoint(60, 4)));
        m_names.move(2, 0);
        QCOMPARE(m.photos(), m_names);
        select(2);
        m.click("m_btnRotate");
        QCOMPARE(slides().at(2)->angle(), 90);
    }

    void writeCaption()
    {
        select(1);
        m.child<QWidget>("tableView")->setFocus();
        m.press(Qt::Key_F2);
        QTest::keyClicks(m.child<QTextEdit>("teProjectItemText"), QStringLiteral("By the water"));
        m.click("butSaveText");
        QCOMPARE(slides().at(1)->caption().text, QStringLiteral("By the water"));
    }

    void listenToMusic()
    {
        dropFiles({QStringLiteral(VELMORA_EXAMPLES "/music/Morning walk.ogg")}, "tableAudioFiles");
        QTRY_COMPARE(m.view->document().project()->audio().items.size(), 1);
        m.click("btnFullPreview");
        QTRY_VERIFY(m.view->findChild<PreviewWidget *>()->isPlaying());
    }

    /// Pauses on the way and goes on.
    void render()
    {
        const Composer &composer = m.view->editorPage().createPanel().composer();
        m.child<QLineEdit>("txtProjName")->setText(QStringLiteral("Journey"));
        m.dialogs.expect([this](QDialog *dialog) {
            m_video = dialog->findChild<QLabel *>(QStringLiteral("lblFile"))->text();
            dialog->reject();
        });
        m.click("btnCreate");
        QTRY_VERIFY(composer.isRunning());
        QVERIFY(!m.view->findChild<PreviewWidget *>()->isPlaying());
        QTRY_VERIFY(m.taskbar.value > 5);
        m.click("btnPauseResume");
        QVERIFY(m.taskbar.paused);
        // What is in work is finished first, however slow the machine is.
        int percent = 0;
        do {
            percent = m.taskbar.value;
            QTest::qWait(1500);
        } while (m.taskbar.value != percent && m_video.isEmpty());
        QVERIFY(m_video.isEmpty());
        QVERIFY(composer.isPaused());
        m.click("btnPauseResume");
        QTRY_VERIFY(!m_video.isEmpty());
        QCOMPARE(m_video, QStringLiteral("Journey.mp4"));
        QCOMPARE(m.view->page(), MainView::History);
    }

    /// Every slide is there, in its place, turned and with its text.
    void checkVideo()
    {
        const QString file = m.folder.filePath(m_video);
        const ProjectFile &project = *m.view->document().project();
        const Timeline timeline = Timeline::ofProject(project, m.settings.transitionTime);
        QCOMPARE(VideoProbe::decodingErrors(file), QString());
        const double seconds = static_cast<double>(timeline.totalLength()) / 1000;
        QVERIFY(std::abs(VideoProbe::soundLength(file) - seconds) < 0.15);
        const FrameFormat format{project.resolution(), project.origRatio(), project.scaleToFit()};
        const QVector<QImage> frames = VideoProbe::frames(file, format.size);
        QCOMPARE(qint64(frames.size()), timeline.totalFrames());
        int seen = 0;
        for (const Timeline::Stage &stage : timeline.stages()) {
            if (stage.kind != Timeline::StageKind::Still)
                continue;
            const ProjectItem &slide = *slides().at(stage.slide);
            const QImage expected =
                SlideRenderer::captionedFrame(SlideRenderer::bareFrame(slide, format), slide);
            const auto middle = static_cast<int>((stage.start + stage.length / 2) *
                                                 Timeline::kFramesPerSecond / 1000);
            const double difference = VideoProbe::meanDifference(frames.at(middle), expected);
            QVERIFY2(difference < 6,
                     qPrintable(QStringLiteral("slide %1: %2").arg(stage.slide).arg(difference)));
            ++seen;
        }
        QCOMPARE(seen, 13);
    }

    void select(int number) const
    {
        m.child<QTableView>("tableView")->selectRow(number);
        QCoreApplication::processEvents(); // the buttons follow
    }

    const QVector<ProjectItem *> &slides() const { return m.view->document().project()->items(); }

    MainViewFixture m;
    QStringList m_names; ///< Of the photos, in the order in which they are to be shown.
    QString m_video;
};

QTEST_MAIN(JourneyTest)
#include "JourneyTest.moc"
