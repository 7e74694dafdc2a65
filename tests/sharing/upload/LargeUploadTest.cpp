// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/upload/UploadFixture.h"

#include <QTest>

#include <algorithm>

using namespace velmora;

namespace
{

constexpr qint64 kSize = 3LL * 1024 * 1024 * 1024; // bytes
constexpr qint64 kAllowance = 60 * 1024;           // KiB above idle

/// A line of /proc/self/status in KiB.
qint64 memory(const char *line)
{
    const QByteArray status = readFile(QStringLiteral("/proc/self/status"));
    const QByteArray from = status.mid(status.indexOf(line) + qstrlen(line) + 1);
    return from.left(from.indexOf('k')).trimmed().toLongLong();
}

/// The highest memory use so far is forgotten.
bool resetPeak()
{
    QFile refs(QStringLiteral("/proc/self/clear_refs"));
    return refs.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && refs.write("5") == 1;
}

} // namespace

/// A file of 3 GB goes from the disk to the service without staying in memory.
class LargeUploadTest : public QObject
{
    Q_OBJECT

private slots:
    void memoryStaysFlat_data()
    {
        QTest::addColumn<QString>("service");
        for (const QString &service : kServices)
            QTest::newRow(qPrintable(service)) << service;
    }

    void memoryStaysFlat()
    {
        QFETCH(QString, service);
        UploadFixture user(m_services);
        // Once on a small file, so that what is loaded once is there.
        user.grant(service);
        QCOMPARE(user.run(service, user.video(10)).finished.size(), 2);

        QFile file(user.path("large.mp4"));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.resize(kSize));
        file.close();
        const qint64 idle = memory("VmRSS");
        QVERIFY(resetPeak());
        const UploadCourse course = [&] {
            user.start(service, file.fileName());
            return user.wait(600000);
        }();
        const qint64 peak = memory("VmHWM");
        QCOMPARE(course.failed.join(QString()), QString());
        QCOMPARE(course.finished.size(), 2);
        QCOMPARE(static_cast<qint64>(
                     m_services.files().at(1).toObject().value(QLatin1String("size")).toDouble()),
                 kSize);
        // One report may cover several percent, when much is sent at a time.
        QVERIFY(std::any_of(course.progress.begin(), course.progress.end(),
                            [](int percent) { return percent > 40 && percent < 60; }));
        QCOMPARE(course.progress.last(), 100);
        qInfo("idle %lld KiB, peak %lld KiB", idle, peak);
#ifndef __SANITIZE_ADDRESS__
        QVERIFY2(peak - idle < kAllowance, qPrintable(QString::number(peak - idle)));
#endif
    }

private:
    FakeServices m_services{false};
};

QTEST_MAIN(LargeUploadTest)
#include "LargeUploadTest.moc"
