// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/documents/Timeline.h"

#include "app/AppSettings.h"
#include "project/documents/ProjectFile.h"
#include "project/slides/ProjectItemFirst.h"
#include "project/slides/ProjectItemSimple.h"

#include <QTest>

#include <limits>
#include <memory>

using namespace velmora;

namespace
{

const AppSettings settings;

/// A project from a short notation, one word per slide: 'T' title or 'P' photo, lower-case when
/// hidden, then the time, then '+' for a caption: "T3+ P5 P2+".
std::unique_ptr<ProjectFile> projectFrom(const QString &notation)
{
    auto project = std::make_unique<ProjectFile>(settings, ProjectFile::TitleSlide::Omit);
    for (QString word : notation.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        const bool captioned = word.endsWith(QLatin1Char('+'));
        word.remove(QLatin1Char('+'));
        const QChar kind = word.at(0);
        const int time = word.midRef(1).toInt();
        ProjectItem *item = nullptr;
        if (kind.toUpper() == QLatin1Char('T')) {
            auto *title = new ProjectItemFirst(time);
            title->setVisible(kind.isUpper());
            item = title;
        } else {
            item = new ProjectItemSimple(QStringLiteral("/a.jpg"), time, 0);
        }
        CaptionStyle caption = item->caption();
        caption.text = captioned ? QStringLiteral("text") : QString();
        item->setCaption(caption);
        project->insertItem(-1, item);
    }
    return project;
}

/// "p1<0@3000+2000" : picture stage of slide 1 after slide 0, from 3000 ms, 2000 ms long.
QString describe(const Timeline &timeline)
{
    QStringList words;
    for (const Timeline::Stage &stage : timeline.stages()) {
        QString word = QLatin1Char(stage.prefix()) + QString::number(stage.slide);
        if (stage.previousSlide >= 0)
            word += QLatin1Char('<') + QString::number(stage.previousSlide);
        words.append(word + QStringLiteral("@%1+%2").arg(stage.start).arg(stage.length));
    }
    return words.join(QLatin1Char(' '));
}

} // namespace

class TimelineTest : public QObject
{
    Q_OBJECT
private slots:
    void stages_data()
    {
        QTest::addColumn<QString>("slides");
        QTest::addColumn<int>("transition");
        QTest::addColumn<QString>("expected");
        QTest::addColumn<qint64>("frames");
        const auto row = [](const char *name, const char *slides, int transition,
                            const char *expected, qint64 frames) {
            QTest::newRow(name) << slides << transition << expected << frames;
        };
        row("no slides", "", 2, "", 0);
        row("one photo", "P3", 2, "i0@0+3000", 75);
        row("one captioned title", "T3+", 2, "t0@0+2000 i0@2000+3000", 125);
        row("title and photos", "T3+ P5 P2+", 2,
            "t0@0+2000 i0@2000+3000 p1<0@5000+2000 i1@7000+5000 p2<1@12000+2000 t2@14000+2000 "
            "i2@16000+2000",
            450);
        row("hidden title is left out", "t3+ P4+ P1", 1,
            "t1@0+1000 i1@1000+4000 p2<1@5000+1000 i2@6000+1000", 175);
        row("hidden slide in the middle", "P1 t9+ P1", 3, "i0@0+1000 p2<0@1000+3000 i2@4000+1000",
            125);
        row("all hidden", "t3+ t1", 2, "", 0);
    }

    void stages()
    {
        QFETCH(QString, slides);
        QFETCH(int, transition);
        const Timeline timeline = Timeline::ofProject(*projectFrom(slides), transition);
        QTEST(describe(timeline), "expected");
        QTEST(timeline.totalFrames(), "frames");
        QCOMPARE(timeline.totalLength(), timeline.totalFrames() * 40);
        qint64 frames = 0;
        for (const Timeline::Stage &stage : timeline.stages()) {
            QCOMPARE(stage.frameCount * 40, static_cast<int>(stage.length));
            frames += stage.frameCount;
        }
        QCOMPARE(frames, timeline.totalFrames());
    }

    void extremeTimes_data()
    {
        QTest::addColumn<int>("time");
        QTest::addColumn<int>("seconds");
        QTest::newRow("lowest") << std::numeric_limits<int>::min() << 1;
        QTest::newRow("negative") << -1 << 1;
        QTest::newRow("zero") << 0 << 1;
        QTest::newRow("a day") << 86400 << 86400;
        QTest::newRow("longer") << 86401 << 86400;
        QTest::newRow("highest") << std::numeric_limits<int>::max() << 86400;
    }

    void extremeTimes()
    {
        QFETCH(int, time);
        QFETCH(int, seconds);
        const auto project = projectFrom(QStringLiteral("P%1 P%1").arg(time));
        const Timeline timeline = Timeline::ofProject(*project, time);
        QCOMPARE(timeline.totalLength(), 3000LL * seconds);
        QCOMPARE(timeline.totalFrames(), 75LL * seconds);
        QCOMPARE(timeline.stages().at(1).frameCount, 25 * seconds);
    }

    void stageAtPosition_data()
    {
        QTest::addColumn<qint64>("position");
        QTest::addColumn<int>("stage");
        QTest::newRow("far before") << std::numeric_limits<qint64>::min() << 0;
        QTest::newRow("before") << qint64(-1) << 0;
        QTest::newRow("start") << qint64(0) << 0;
        QTest::newRow("last ms of the first") << qint64(2999) << 0;
        QTest::newRow("first ms of the second") << qint64(3000) << 1;
        QTest::newRow("last ms of the second") << qint64(4999) << 1;
        QTest::newRow("third") << qint64(5000) << 2;
        QTest::newRow("end") << qint64(9000) << 2;
        QTest::newRow("far behind") << std::numeric_limits<qint64>::max() << 2;
    }

    void stageAtPosition()
    {
        QFETCH(qint64, position);
        const Timeline timeline = Timeline::ofProject(*projectFrom(QStringLiteral("P3 P4")), 2);
        QTEST(timeline.stageAt(position), "stage");
        QCOMPARE(Timeline().stageAt(position), -1);
    }
};

QTEST_GUILESS_MAIN(TimelineTest)
#include "TimelineTest.moc"
