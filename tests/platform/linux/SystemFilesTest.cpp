// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/SystemFiles.h"
#include "platform/SystemInfo.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

using namespace velmora;

class SystemFilesTest : public QObject
{
    Q_OBJECT

private slots:
    void readsLaptop();
    void deviceBatteriesAreNoLaptop();
    void nothingThereIsNoFailure();

private:
    static void write(const QTemporaryDir &root, const char *name, const QByteArray &content)
    {
        const QString path = root.filePath(QLatin1String(name));
        QVERIFY(QDir().mkpath(QFileInfo(path).path()));
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
};

void SystemFilesTest::readsLaptop()
{
    const QTemporaryDir root;
    write(
        root, "proc/cpuinfo",
        "processor\t: 0\nmodel\t\t: 1\nmodel name\t: Some CPU @ 2.00GHz: 4 cores\nflags\t: fpu\n");
    write(root, "proc/meminfo", "MemTotal:       16284412 kB\nMemFree:  1 kB\n");
    write(root, "sys/class/drm/card0/device/uevent", "DRIVER=i915\nPCI_ID=8086:3E92\n");
    write(root, "sys/class/power_supply/AC/type", "Mains\n");
    write(root, "sys/class/power_supply/BAT0/type", "Battery\n");
    SystemInfo info;
    readSystemFiles(info, root.path());
    QCOMPARE(info.processor, QStringLiteral("Some CPU @ 2.00GHz: 4 cores"));
    QCOMPARE(info.memoryMb, 15902);
    QCOMPARE(info.videoAdapter, QStringLiteral("i915 8086:3E92"));
    QVERIFY(info.laptop);
}

void SystemFilesTest::deviceBatteriesAreNoLaptop()
{
    const QTemporaryDir root;
    write(root, "sys/class/power_supply/hid-mouse/type", "Battery\n");
    write(root, "sys/class/power_supply/hid-mouse/scope", "Device\n");
    SystemInfo info;
    readSystemFiles(info, root.path());
    QVERIFY(!info.laptop);
}

void SystemFilesTest::nothingThereIsNoFailure()
{
    const QTemporaryDir root;
    QTest::ignoreMessage(QtWarningMsg, "Failed to get installed RAM, error: \"\"");
    QTest::ignoreMessage(QtWarningMsg,
                         "Failed to get display device, error: no graphics card listed");
    SystemInfo info;
    readSystemFiles(info, root.path());
    QCOMPARE(info.memoryMb, 0);
    QVERIFY(!info.laptop);
}

QTEST_GUILESS_MAIN(SystemFilesTest)
#include "SystemFilesTest.moc"
