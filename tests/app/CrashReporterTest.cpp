// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CrashReporter.h"
#include "helpers/TestProcess.h"

#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTemporaryFile>

using namespace velmora;

class CrashReporterTest : public QObject
{
    Q_OBJECT
private slots:
    void tellsOnceAboutAnEarlierCrash()
    {
        const QTemporaryDir folder;
        const QString dump = folder.filePath(QStringLiteral("velmora.dmp"));
        QProcess process;
        process.start(testProcessPath(),
                      {QStringLiteral("--crash-dump"), dump, QStringLiteral("--crash")});
        QVERIFY(process.waitForFinished(120'000)); // Wine is slow with dumps
        QVERIFY(QFile::exists(dump));

        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^Crash dump found")));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral(
                                               "^(Signal 6|Mini dump of \\d+ bytes)$")));
        QTest::ignoreMessage(
            QtInfoMsg, QRegularExpression(QStringLiteral("^Crash installer setup time:\\d+$")));
        {
            const CrashReporter reporter(folder.path());
        }
        QVERIFY(!QFile::exists(dump));
    }

    void unusableFolderIsLogged()
    {
        QTemporaryFile file;
        QVERIFY(file.open());
        const QString folder = file.fileName() + QStringLiteral("/none");
        QTest::ignoreMessage(QtWarningMsg,
                             qPrintable(QStringLiteral("Cannot create folder '%1'").arg(folder)));
        QTest::ignoreMessage(
            QtWarningMsg, QRegularExpression(QStringLiteral("^Could not start crash reporter. ")));
        const CrashReporter reporter(folder);
    }

    void exceptionLeavesDumpAndGoesOn()
    {
        const QTemporaryDir folder;
        const CrashReporter reporter(folder.path());
        QTest::ignoreMessage(QtCriticalMsg, "Exception caught, trying to continue... out of luck");
        QTest::ignoreMessage(QtCriticalMsg, "Mini dump is inside");
        CrashReporter::onException("out of luck");
        QVERIFY(QFile::exists(folder.filePath(QStringLiteral("velmora.dmp"))));
    }
};

QTEST_GUILESS_MAIN(CrashReporterTest)
#include "CrashReporterTest.moc"
