// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/encoding/EncoderLocator.h"
#include "helpers/Files.h"

#include <QtTest>

using namespace velmora;

class EncoderLocatorTest : public QObject
{
    Q_OBJECT

    /// An encoder that only tells @p version.
    static QString makeEncoder(const QTemporaryDir &folder, const QByteArray &version)
    {
        const QFileInfo tool(QStringLiteral(FAKE_TOOL));
        const QString program =
            folder.filePath(tool.fileName().replace(tool.baseName(), QStringLiteral("ffmpeg")));
        return writeFile(program + QStringLiteral(".version"), "ffmpeg version " + version) &&
                       QFile::copy(tool.filePath(), program)
                   ? program
                   : QString();
    }

    static bool onWindows()
    {
        return QOperatingSystemVersion::currentType() == QOperatingSystemVersion::Windows;
    }

private slots:
    void init()
    {
        m_path = qgetenv("PATH");
        qunsetenv("VELMORA_FFMPEG");
    }
    void cleanup()
    {
        qputenv("PATH", m_path);
        qunsetenv("VELMORA_FFMPEG");
    }

    void version_data()
    {
        QTest::addColumn<QByteArray>("output");
        QTest::addColumn<bool>("usable");
        const auto row = [](const char *output, bool usable) {
            QTest::newRow(output) << QByteArray(output) << usable;
        };
        row("ffmpeg version 5.1.9-0+deb12u1 Copyright (c) 2000-2026", true);
        row("ffmpeg version 4.4.2-0ubuntu0.22.04.1 Copyright", true);
        row("ffmpeg version 4.4", true);
        row("ffmpeg version 4.3.9", false);
        row("ffmpeg version 10.0", true);
        row("ffmpeg version n7.1-3-g1", true);
        row("ffmpeg version n4.1", false);
        row("ffmpeg version N-109542-g7bf8\nlibavutil      57. 44.100 / 57. 44.100\n", true);
        row("ffmpeg version N-90000-g7bf8\nlibavutil      56. 15.100 / 56. 15.100\n", false);
        row("ffmpeg version N-90000-g7bf8\n", false);
        row("bash: ffmpeg version 5.1", false);
        row("", false);
    }
    void version()
    {
        QFETCH(QByteArray, output);
        QTEST(EncoderVersion::fromOutput(output).usable, "usable");
    }

    void prefersTheConfiguredProgram()
    {
        const QTemporaryDir configured;
        const QTemporaryDir old;
        const QTemporaryDir path;
        const QString inPath = makeEncoder(path, "6.1");
        qputenv("PATH", QFile::encodeName(path.path()));
        qputenv("VELMORA_FFMPEG", "/nowhere/ffmpeg");
        QCOMPARE(locateEncoder().program, inPath);
        qputenv("VELMORA_FFMPEG", QFile::encodeName(makeEncoder(old, "4.2.7")));
        QCOMPARE(locateEncoder().program, inPath);
        const QString program = makeEncoder(configured, "6.0");
        qputenv("VELMORA_FFMPEG", QFile::encodeName(program));
        QCOMPARE(locateEncoder().program, program);
        QVERIFY(locateEncoder().error.isEmpty());
    }

    void namesWhatIsTooOld()
    {
        const QTemporaryDir path;
        const QString program = makeEncoder(path, "4.2.7");
        qputenv("PATH", QFile::encodeName(path.path()));
        const EncoderLocation location = locateEncoder();
        QVERIFY(location.program.isEmpty());
        QVERIFY2(location.error.contains(QStringLiteral("4.2.7")) &&
                     location.error.contains(QDir::toNativeSeparators(program)) &&
                     location.error.contains(QStringLiteral("4.4")),
                 qPrintable(location.error));
        QCOMPARE(location.error.contains(QStringLiteral("ffmpeg.exe of")), onWindows());
    }

    void saysWhatToInstall()
    {
        const QTemporaryDir empty;
        qputenv("PATH", QFile::encodeName(empty.path()));
        const EncoderLocation location = locateEncoder();
        QVERIFY(location.program.isEmpty());
        const QString how =
            onWindows() ? QStringLiteral("It comes with Velmora: please install Velmora again, or "
                                         "put ffmpeg.exe into its folder.")
                        : QStringLiteral("Please install it (on Debian and Ubuntu: sudo apt "
                                         "install ffmpeg).");
        QCOMPARE(location.error, QStringLiteral("FFmpeg was not found. ") + how);
    }

private:
    QByteArray m_path;
};

QTEST_GUILESS_MAIN(EncoderLocatorTest)
#include "EncoderLocatorTest.moc"
