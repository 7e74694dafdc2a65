// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/SystemFiles.h"
#include "helpers/Files.h"
#include "platform/SystemInfo.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

using namespace velmora;

class SystemFilesTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_root = std::make_unique<QTemporaryDir>(); }

    void readsLaptop()
    {
        write("proc/cpuinfo", "processor\t: 0\nmodel\t\t: 1\n"
                              "model name\t: Some CPU @ 2.00GHz: 4 cores\nflags\t: fpu\n");
        write("proc/meminfo", "MemTotal:       16284412 kB\nMemFree:  1 kB\n");
        write("sys/class/drm/card0/device/uevent", "DRIVER=i915\nPCI_ID=8086:3E92\n");
        write("sys/class/power_supply/AC/type", "Mains\n");
        write("sys/class/power_supply/BAT0/type", "Battery\n");
        const SystemInfo info = read();
        QCOMPARE(info.processor, QStringLiteral("Some CPU @ 2.00GHz: 4 cores"));
        QCOMPARE(info.memoryMb, 15902);
        QCOMPARE(info.videoAdapter, QStringLiteral("i915 8086:3E92"));
        QVERIFY(info.laptop);
    }

    void deviceBatteriesAreNoLaptop()
    {
        write("sys/class/power_supply/hid-mouse/type", "Battery\n");
        write("sys/class/power_supply/hid-mouse/scope", "Device\n");
        // What is not there is no failure.
        QTest::ignoreMessage(QtWarningMsg, "Failed to get installed RAM, error: \"\"");
        QTest::ignoreMessage(QtWarningMsg,
                             "Failed to get display device, error: no graphics card listed");
        const SystemInfo info = read();
        QVERIFY(!info.laptop);
        QCOMPARE(info.memoryMb, 0);
    }

private:
    void write(const char *name, const QByteArray &content) const
    {
        const QString path = m_root->filePath(QLatin1String(name));
        QVERIFY(QDir().mkpath(QFileInfo(path).path()) && writeFile(path, content));
    }
    SystemInfo read() const
    {
        SystemInfo info;
        readSystemFiles(info, m_root->path());
        return info;
    }

    std::unique_ptr<QTemporaryDir> m_root;
};

QTEST_GUILESS_MAIN(SystemFilesTest)
#include "SystemFilesTest.moc"
