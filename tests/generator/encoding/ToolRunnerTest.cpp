// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/encoding/ToolRunner.h"
#include "helpers/Words.h"

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QtTest>

#include <thread>

using namespace velmora;

namespace
{

const QString kTool = QStringLiteral(FAKE_TOOL);

} // namespace

class ToolRunnerTest : public QObject
{
    Q_OBJECT
private slots:
    void returnsOutputsAndExitCode()
    {
        const ToolResult result = ToolRunner().run(kTool, words("out hello err sorry exit 3"));
        QVERIFY(result.started);
        QVERIFY(!result.ok());
        QVERIFY(!result.crashed);
        QCOMPARE(result.exitCode, 3);
        QCOMPARE(result.standardOutput.trimmed(), QByteArray("hello"));
        QCOMPARE(result.reason(), QStringLiteral("sorry"));
        QVERIFY(ToolRunner().run(kTool, {}).ok());
    }

    void passesArgumentsUnchanged_data()
    {
        QTest::addColumn<QString>("text");
        for (const char *text :
             {"two words", "it's \"quoted\"", "100%1 %d %%", "Größe", "漢字", "$HOME `x`"})
            QTest::newRow(text) << QString::fromUtf8(text);
    }
    void passesArgumentsUnchanged()
    {
        QFETCH(QString, text);
        const ToolResult result = ToolRunner().run(kTool, {QStringLiteral("out"), text});
        QCOMPARE(QString::fromUtf8(result.standardOutput.trimmed()), text);
    }

    void runsWithoutAnEventLoop()
    {
        ToolResult result;
        std::thread thread([&] { result = ToolRunner().run(kTool, words("out hello")); });
        thread.join();
        QVERIFY(result.ok());
    }

    void reportsAMissingProgram()
    {
        const ToolResult result = ToolRunner().run(QStringLiteral("/nowhere/tool"), {});
        QVERIFY(!result.started);
        QVERIFY(!result.ok());
        QVERIFY(!result.reason().isEmpty());
    }

    void reportsACrash()
    {
        const ToolResult result = ToolRunner().run(kTool, words("crash"));
        QVERIFY(result.started);
        QVERIFY(result.crashed);
        QVERIFY(!result.ok());
    }

    void survivesGiantErrorOutput()
    {
        qint64 seen = 0;
        const ToolRunner runner(nullptr, [&seen](const QByteArray &piece) {
            seen += piece.size() - piece.count('\r'); // which Windows adds to each line
        });
        const ToolResult result = runner.run(kTool, words("flood 20000000 err end exit 1"));
        QCOMPARE(seen, qint64(20000004));
        QVERIFY(result.standardError.size() <= 1024 * 1024);
        QCOMPARE(result.reason(), QStringLiteral("end"));
    }

    void cancelEndsARunningProgram_data()
    {
        QTest::addColumn<QStringList>("manner");
        QTest::addColumn<bool>("atOnce");
        QTest::newRow("obedient") << QStringList() << true;
        QTest::newRow("deaf") << QStringList(QStringLiteral("deaf")) << false;
    }
    void cancelEndsARunningProgram()
    {
        QFETCH(QStringList, manner);
        QFETCH(bool, atOnce);
        const QTemporaryDir folder;
        const QString mark = folder.filePath(QStringLiteral("running"));
        std::atomic_bool cancelled{false};
        QElapsedTimer sinceCancel;
        std::thread canceller([&] {
            while (!QFileInfo::exists(mark))
                std::this_thread::yield();
            sinceCancel.start();
            cancelled = true;
        });
        const ToolResult result =
            ToolRunner(&cancelled)
                .run(kTool,
                     manner + QStringList{QStringLiteral("touch"), mark, QStringLiteral("hang")});
        canceller.join();
        QVERIFY(!atOnce || sinceCancel.elapsed() < 1900); // no patience was needed
        QVERIFY(result.cancelled);
        QVERIFY(!result.ok());
    }

    void startsNothingOnceCancelled()
    {
        const QTemporaryDir folder;
        const QString mark = folder.filePath(QStringLiteral("running"));
        const std::atomic_bool cancelled{true};
        const ToolResult result =
            ToolRunner(&cancelled).run(kTool, {QStringLiteral("touch"), mark});
        QVERIFY(result.cancelled);
        QVERIFY(!result.ok());
        QVERIFY(!QFileInfo::exists(mark));
    }

    void timeoutEndsAHangingProgram()
    {
        ToolRunner runner;
        runner.setTimeout(100);
        const ToolResult result = runner.run(kTool, words("hang"));
        QVERIFY(result.crashed);
        QVERIFY(!result.cancelled);
    }

    void reason_data()
    {
        QTest::addColumn<QByteArray>("errors");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *name, const char *errors, const char *expected) {
            QTest::newRow(name) << QByteArray(errors) << QString::fromUtf8(expected);
        };
        // As ffmpeg 5.1 writes it.
        row("input", "/tmp/x.jpg: No such file or directory\n",
            "/tmp/x.jpg: No such file or directory");
        row("component", "[mov,mp4 @ 0x55e] moov atom not found\n", "moov atom not found");
        row("after progress",
            "[libx264 @ 0x5] width not divisible by 2 (3x3)\n"
            "frame=    0 fps=0.0 q=0.0 size=       0kB time=00:00:00.00 bitrate=N/A\r"
            "video:0kB audio:0kB subtitle:0kB\nConversion failed!\n",
            "width not divisible by 2 (3x3)");
        row("nothing said", "", "It ended with code 1.");
    }
    void reason()
    {
        QFETCH(QByteArray, errors);
        ToolResult result;
        result.started = true;
        result.exitCode = 1;
        result.standardError = errors;
        QTEST(result.reason(), "expected");
    }
};

QTEST_GUILESS_MAIN(ToolRunnerTest)
#include "ToolRunnerTest.moc"
