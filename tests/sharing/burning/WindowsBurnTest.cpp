// SPDX-License-Identifier: GPL-3.0-or-later
#include "helpers/LogCapture.h"
#include "platform/windows/DiscWriterWindows.h"
#include "platform/windows/FakeImapi.h"
#include "sharing/burning/BurnController.h"

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace velmora;

/// Burns as the dialog does, with a service of Windows that notes what is asked of it.
class WindowsBurnTest : public QObject
{
    Q_OBJECT

private slots:
    void burns_data();
    void burns();
};

void WindowsBurnTest::burns_data()
{
    QTest::addColumn<QString>("failing");
    QTest::addColumn<QString>("reason");
    QTest::addColumn<int>("lines"); // Of the whole log, before the reason.
    QTest::addColumn<int>("percents");
    QTest::newRow("well") << QString() << QString() << 11 << 4;
    QTest::newRow("drive") << QStringLiteral("CoCreateInstance MsftDiscRecorder2")
                           << QStringLiteral("'CoCreateInstance MsftDiscRecorder2' failed, "
                                             "result: '80004005'")
                           << 2 << 0;
    QTest::newRow("erase") << QStringLiteral("MsftDiscFormat2Erase EraseMedia")
                           << QStringLiteral("EraseMedia failed, result: '80004005'") << 5 << 2;
    QTest::newRow("image") << QStringLiteral("MsftFileSystemImage CreateResultImage")
                           << QStringLiteral("'CreateResultImage' failed, result: '80004005'") << 7
                           << 2;
    QTest::newRow("write") << QStringLiteral("MsftDiscFormat2Data Write image")
                           << QStringLiteral("Write failed, result: '80004005'") << 10 << 4;
}

void WindowsBurnTest::burns()
{
    QFETCH(QString, failing);
    QFETCH(QString, reason);
    QFETCH(int, lines);
    QFETCH(int, percents);
    QTemporaryDir folder;
    QFile video(folder.filePath(QStringLiteral("a.mp4")));
    QVERIFY(video.open(QIODevice::WriteOnly));
    video.close();
    FakeDisc disc;
    disc.failing = failing;
    disc.seconds = {{1, 4}, {4, 4}};
    BurnController controller(
        std::make_unique<DiscWriterWindows>(std::make_unique<FakeImapi>(disc)));
    QSignalSpy finished(&controller, &BurnController::burnFinished);
    QSignalSpy progress(&controller, &BurnController::burnProgress);
    BurnJob job;
    job.recorderId = QStringLiteral("drive0");
    job.video = video.fileName();
    job.fileName = job.volumeName = QStringLiteral("film");
    job.erase = true;
    LogCapture log;
    controller.burn(job);
    QVERIFY(finished.wait());
    QCOMPARE(finished.first().first().toBool(), failing.isEmpty());
    QCOMPARE(progress.size(), percents);
    QCOMPARE(disc.objects, 0);
    QVERIFY(video.exists());

    const QStringList all{
        QStringLiteral("Burn started"),
        QStringLiteral("Burn begin thread"),
        QStringLiteral("Burn begin erasing"),
        QStringLiteral("Burn erase progress 1 from 4"),
        QStringLiteral("Burn erase progress 4 from 4"),
        QStringLiteral("Current media status: '2'."),
        QStringLiteral("Burn creating FS"),
        QStringLiteral("Burn writing"),
        QStringLiteral("Burn write progress 1 from 4"),
        QStringLiteral("Burn write progress 4 from 4"),
        QStringLiteral("Burn writing finished"),
    };
    QStringList logged = log.lines();
    logged.move(logged.indexOf(all.first()), 0); // The threads' first lines may change places.
    QStringList expected = all.mid(0, lines);
    if (!reason.isEmpty())
        expected.append(reason);
    QCOMPARE(logged, expected);
}

QTEST_GUILESS_MAIN(WindowsBurnTest)
#include "WindowsBurnTest.moc"
