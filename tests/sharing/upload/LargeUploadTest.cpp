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
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return -1;
    const QList<QByteArray> lines = status.readAll().split('\n');
    for (const QByteArray &each : lines) {
        if (each.startsWith(line))
            return each.mid(each.indexOf(':') + 1).trimmed().split(' ').first().toLongLong();
    }
    return -1;
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
    void memoryStaysFlat_data();
    void memoryStaysFlat();

private:
    FakeServices m_services{false};
};

void LargeUploadTest::memoryStaysFlat_data()
{
    QTest::addColumn<QString>("key");
    QTest::newRow("youtube") << "yt";
    QTest::newRow("googledrive") << "gd";
    QTest::newRow("dropbox") << "db";
}

void LargeUploadTest::memoryStaysFlat()
{
    QFETCH(QString, key);
    const QString service = QString::fromLatin1(QTest::currentDataTag());
    UploadFixture user(m_services);
    // Once on a small file, so that what is loaded once is there.
    user.grant(service, key);
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

QTEST_MAIN(LargeUploadTest)
#include "LargeUploadTest.moc"
