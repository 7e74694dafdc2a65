// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/AppSettings.h"

#include <QFile>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

using namespace velmora;

namespace
{

QVector<int> numbersOf(const AppSettings &settings)
{
    return {settings.defaultTransition, settings.defaultTime, settings.transitionTime,
            settings.audioOffset, settings.audioFade};
}

QVector<bool> flagsOf(const AppSettings &settings)
{
    return {settings.scaleToFit, settings.origRatio, settings.speedGeneration, settings.autoUpdates,
            settings.sendStatistics};
}

} // namespace

class AppSettingsTest : public QObject
{
    Q_OBJECT
private slots:
    void defaults()
    {
        const AppSettings settings = loaded(QByteArray());
        QCOMPARE(numbersOf(settings), (QVector<int>{1, 3, 2, 0, 0}));
        QCOMPARE(flagsOf(settings), (QVector<bool>{true, true, false, true, false}));
        QCOMPARE(settings.resolution, QSize(1920, 1080));
        QCOMPARE(settings.folder,
                 QStandardPaths::writableLocation(QStandardPaths::DesktopLocation));
        QVERIFY(settings.locale.size() == 2);
        QCOMPARE(settings.outputProfile, QStringLiteral("original"));
    }

    void unusableNumbers()
    {
        for (const char *value : {"abc", "", "99999999999999999999", "2000000000", "-2000000000",
                                  "1, 2", "1.5", "@Variant(\\0\\0\\0\\x7f)"}) {
            QByteArray lines;
            for (const char *key :
                 {"defaultTransition", "defaultTime", "transitionTime", "audioOffset", "audioFade"})
                lines += QByteArray(key) + '=' + value + '\n';
            QVERIFY2(numbersOf(loaded(lines)) == numbersOf(AppSettings()), value);
        }
    }

    void booleans_data()
    {
        QTest::addColumn<QByteArray>("value");
        QTest::addColumn<bool>("whenTrueByDefault");
        QTest::addColumn<bool>("whenFalseByDefault");
        QTest::newRow("true") << QByteArray("true") << true << true;
        QTest::newRow("false") << QByteArray("false") << false << false;
        QTest::newRow("1") << QByteArray("1") << true << true;
        QTest::newRow("0") << QByteArray("0") << false << false;
        QTest::newRow("capitals") << QByteArray("True") << true << true;
        QTest::newRow("garbage") << QByteArray("maybe") << true << false;
        QTest::newRow("empty") << QByteArray("") << true << false;
    }

    void booleans()
    {
        QFETCH(QByteArray, value);
        const AppSettings settings = loaded("scaleToFit=" + value + "\nspeedGeneration=" + value);
        QTEST(settings.scaleToFit, "whenTrueByDefault");
        QTEST(settings.speedGeneration, "whenFalseByDefault");
    }

    void resolutionRule_data()
    {
        QTest::addColumn<QByteArray>("stored");
        QTest::addColumn<QSize>("screen");
        QTest::addColumn<QSize>("expected");
        const QSize hd(1920, 1080);
        QTest::newRow("stored") << QByteArray("800x600") << hd << QSize(800, 600);
        QTest::newRow("stored, not offered") << QByteArray("1234x567") << hd << QSize(1234, 567);
        QTest::newRow("zero") << QByteArray("0x0") << QSize(1366, 768) << QSize(1366, 768);
        QTest::newRow("half zero") << QByteArray("640x0") << hd << hd;
        QTest::newRow("negative") << QByteArray("-640x480") << hd << hd;
        QTest::newRow("garbage") << QByteArray("large") << QSize(1280, 800) << QSize(1024, 768);
        QTest::newRow("capital") << QByteArray("640X480") << hd << hd;
        QTest::newRow("more text") << QByteArray("640x480x2") << hd << hd;
        QTest::newRow("huge") << QByteArray("99999x99999") << hd << hd;
        QTest::newRow("overflow") << QByteArray("4294967936x480") << hd << hd;
        QTest::newRow("missing") << QByteArray() << QSize(3840, 2160) << QSize(3840, 2160);
        QTest::newRow("between") << QByteArray() << QSize(2000, 1300) << hd;
        QTest::newRow("upright screen") << QByteArray() << QSize(1080, 1920) << QSize(1024, 768);
        QTest::newRow("larger than all") << QByteArray() << QSize(9000, 9000) << QSize(3840, 2160);
        QTest::newRow("smaller than all") << QByteArray() << QSize(320, 240) << QSize(640, 480);
        QTest::newRow("no screen") << QByteArray("x") << QSize() << hd;
    }

    void resolutionRule()
    {
        QFETCH(QByteArray, stored);
        QFETCH(QSize, screen);
        const QByteArray line = stored.isNull() ? QByteArray() : "resolution=" + stored;
        QTEST(loaded(line, screen).resolution, "expected");
    }

    void texts_data()
    {
        QTest::addColumn<QByteArray>("lines");
        QTest::addColumn<QString>("folder");
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("profile");
        const QString desktop = QStandardPaths::writableLocation(QStandardPaths::DesktopLocation);
        const QString system = loaded(QByteArray()).locale;
        const auto row = [](const char *lines, const QString &folder, const QString &locale,
                            const char *profile) {
            QTest::newRow(lines) << QByteArray(lines) << folder << locale << profile;
        };
        row("folder=/a b\nlocale=de\noutputProfile=everywhere", QStringLiteral("/a b"),
            QStringLiteral("de"), "everywhere");
        row("locale=pt_BR", desktop, QStringLiteral("pt_BR"), "original");
        row("folder=\nlocale=\noutputProfile=", desktop, system, "original");
        row("folder=/home/m\xc3\xbcller,x", QStringLiteral("/home/m\u00fcller,x"), system,
            "original");
        row("locale=../../x\noutputProfile=best", desktop, system, "original");
    }

    void texts()
    {
        QFETCH(QByteArray, lines);
        const AppSettings settings = loaded(lines);
        QTEST(settings.folder, "folder");
        QTEST(settings.locale, "locale");
        QTEST(settings.outputProfile, "profile");
    }

    void saveAndLoad()
    {
        AppSettings settings;
        settings.defaultTransition = 28;
        settings.defaultTime = 20;
        settings.transitionTime = 3;
        settings.audioOffset = -10;
        settings.audioFade = 5;
        settings.scaleToFit = false;
        settings.origRatio = false;
        settings.speedGeneration = true;
        settings.resolution = {1366, 768};
        settings.folder = QStringLiteral("/videos, \u00fc%1;\"x\"\\");
        settings.locale = QStringLiteral("fr");
        settings.autoUpdates = false;
        settings.sendStatistics = true;
        settings.outputProfile = QStringLiteral("everywhere");
        const QString path = m_folder.filePath(QStringLiteral("saved.ini"));
        QVERIFY(settings.save(*openSettings(path)));

        AppSettings read;
        read.load(*openSettings(path), QSize());
        QCOMPARE(numbersOf(read), numbersOf(settings));
        QCOMPARE(flagsOf(read), flagsOf(settings));
        QCOMPARE(read.resolution, settings.resolution);
        QCOMPARE(read.folder, settings.folder);
        QCOMPARE(read.locale, settings.locale);
        QCOMPARE(read.outputProfile, settings.outputProfile);
    }

    void saveReportsFailure()
    {
        const QString parent = m_folder.filePath(QStringLiteral("in the way"));
        QFile file(parent);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.close();
        const QString path = parent + QStringLiteral("/settings.ini");
        const auto store = openSettings(path);
        QTest::ignoreMessage(QtWarningMsg,
                             qPrintable(QStringLiteral("Cannot write settings to '%1'").arg(path)));
        QVERIFY(!AppSettings().save(*store));
        // What stood in the way may go.
        QVERIFY(file.remove());
        AppSettings later;
        later.defaultTime = 9;
        QVERIFY(later.save(*store));
        AppSettings read;
        read.load(*openSettings(path), QSize());
        QCOMPARE(read.defaultTime, 9);
    }

private:
    // Loads settings from a file with these lines.
    AppSettings loaded(const QByteArray &lines, const QSize &screen = QSize())
    {
        const QString path = m_folder.filePath(QStringLiteral("%1.ini").arg(++m_number));
        QFile file(path);
        file.open(QIODevice::WriteOnly);
        file.write("[General]\n" + lines + '\n');
        file.close();
        AppSettings settings;
        settings.load(*openSettings(path), screen);
        return settings;
    }

    QTemporaryDir m_folder;
    int m_number = 0;
};

QTEST_GUILESS_MAIN(AppSettingsTest)
#include "AppSettingsTest.moc"
