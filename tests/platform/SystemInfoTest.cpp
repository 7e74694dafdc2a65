// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/SystemInfo.h"

#include <QGuiApplication>
#include <QScreen>
#include <QSysInfo>
#include <QTest>

using namespace velmora;

class SystemInfoTest : public QObject
{
    Q_OBJECT

private slots:
    void readsThisMachine()
    {
        const SystemInfo info = readSystemInfo();
        QVERIFY(!info.osId.isEmpty());
        // Processors of other kinds do not tell their name everywhere.
        if (QSysInfo::currentCpuArchitecture() == QLatin1String("x86_64"))
            QVERIFY(!info.processor.isEmpty());
        QVERIFY(info.processorCount > 0);
        QVERIFY(info.memoryMb > 64);
        QVERIFY(!info.emulated32);
        QCOMPARE(info.screen, QGuiApplication::primaryScreen()->size() *
                                  QGuiApplication::primaryScreen()->devicePixelRatio());
        QVERIFY2(info.dpi >= 48 && info.dpi <= 600, qPrintable(QString::number(info.dpi)));
    }
};

QTEST_MAIN(SystemInfoTest)
#include "SystemInfoTest.moc"
