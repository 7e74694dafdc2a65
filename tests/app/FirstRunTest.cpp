// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/FirstRun.h"
#include "app/AppSettings.h"

#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

using namespace velmora;

class FirstRunTest : public QObject
{
    Q_OBJECT
private slots:
    void onlyTheFirstStartIsFirst()
    {
        const QTemporaryDir folder;
        const auto store = openSettings(folder.filePath(QStringLiteral("settings.ini")));
        QVERIFY(FirstRun::take({}, *store).firstRun);
        QVERIFY(!FirstRun::take({}, *store).firstRun);
        store->setValue(QStringLiteral("frun"), 1);
        QVERIFY(FirstRun::take({}, *store).firstRun);
        QVERIFY(!FirstRun::take({}, *store).firstRun);
    }

    void installerArguments_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<bool>("fromInstaller");
        const QString program = QStringLiteral("velmora");
        QTest::newRow("none") << QStringList{program} << false;
        QTest::newRow("two dashes") << QStringList{program, QStringLiteral("--inst")} << true;
        QTest::newRow("one dash") << QStringList{program, QStringLiteral("-inst")} << true;
        QTest::newRow("other") << QStringList{program, QStringLiteral("--install")} << false;
    }

    void installerArguments()
    {
        QFETCH(QStringList, arguments);
        QFETCH(bool, fromInstaller);
        const QTemporaryDir folder;
        const auto store = openSettings(folder.filePath(QStringLiteral("settings.ini")));
        QCOMPARE(FirstRun::take(arguments, *store).fromInstaller, fromInstaller);
        QCOMPARE(store->value(QStringLiteral("rinst"), false).toBool(), fromInstaller);
    }

    void languageOfTheInstallerIsTakenOverOnce()
    {
        const QTemporaryDir folder;
        const auto store = openSettings(folder.filePath(QStringLiteral("settings.ini")));
        store->setValue(QStringLiteral("lang"), QStringLiteral("de"));
        FirstRun::take({}, *store);
        AppSettings settings;
        settings.load(*store, QSize());
        QCOMPARE(settings.locale, QStringLiteral("de"));
        store->setValue(QStringLiteral("locale"), QStringLiteral("fr"));
        FirstRun::take({}, *store);
        settings.load(*store, QSize());
        QCOMPARE(settings.locale, QStringLiteral("fr"));
    }
};

QTEST_GUILESS_MAIN(FirstRunTest)
#include "FirstRunTest.moc"
