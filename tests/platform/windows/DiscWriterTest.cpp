// SPDX-License-Identifier: GPL-3.0-or-later
#include "helpers/LogCapture.h"
#include "platform/windows/DiscWriterWindows.h"
#include "platform/windows/FakeImapi.h"

#include <QTest>

using namespace velmora;

/// Looks for drives and at their discs, with objects that note each call and can fail.
class DiscWriterTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void listsRecorders();
    void discoveryFailures_data();
    void discoveryFailures();
    void looksAtDiscs_data();
    void looksAtDiscs();
    void systemService();

private:
    std::unique_ptr<FakeDisc> m_disc;
    std::unique_ptr<DiscWriterWindows> m_writer;
};

void DiscWriterTest::init()
{
    m_disc = std::make_unique<FakeDisc>();
    m_disc->failure = static_cast<HRESULT>(0xc0aa0002);
    m_writer = std::make_unique<DiscWriterWindows>(std::make_unique<FakeImapi>(*m_disc));
}

/// Whatever happened, every object is released.
void DiscWriterTest::cleanup()
{
    QCOMPARE(m_disc->objects, 0);
}

void DiscWriterTest::listsRecorders()
{
    m_disc->drives.append(QStringLiteral("drive1"));
    LogCapture log;
    const auto recorders = m_writer->recorders();
    QCOMPARE(recorders.size(), 2);
    QCOMPARE(recorders.at(1).id, QStringLiteral("drive1"));
    QCOMPARE(recorders.at(1).productId, QStringLiteral("DVDRAM GH24"));
    QCOMPARE(recorders.at(1).volumes, QStringList{QStringLiteral("E:\\")});
    QCOMPARE(log.lines(),
             QStringList{QStringLiteral("IDiscMaster2->get_Count return '2' devices")});
    QCOMPARE(m_writer->hindrance(), QString());
}

void DiscWriterTest::discoveryFailures_data()
{
    QTest::addColumn<QString>("call");
    QTest::addColumn<QString>("step");
    QTest::addColumn<int>("found");
    const auto row = [](const char *call, const char *step, int found) {
        QTest::newRow(call) << QString::fromLatin1(call) << QString::fromLatin1(step) << found;
    };
    row("CoCreateInstance MsftDiscMaster2", "Failed to create MsftDiscMaster2,", 0);
    row("MsftDiscMaster2 get_IsSupportedEnvironment",
        "IDiscMaster2->get_IsSupportedEnvironment failed,", 0);
    row("MsftDiscMaster2 get_Count", "IDiscMaster2->get_Count failed,", 0);
    row("MsftDiscMaster2 get_Item 0", "m_DiscMaster->get_Item failed,", 1);
    row("CoCreateInstance MsftDiscRecorder2", "'CoCreateInstance MsftDiscRecorder2' failed,", 0);
    row("MsftDiscRecorder2 InitializeDiscRecorder drive0", "InitializeDiscRecorder failed,", 1);
    row("MsftDiscRecorder2 get_ProductId", "get_ProductId failed,", 0);
    row("MsftDiscRecorder2 get_VolumePathNames", "get_VolumePathNames failed,", 0);
    row("unsupported", "", 0);
}

void DiscWriterTest::discoveryFailures()
{
    QFETCH(QString, call);
    QFETCH(QString, step);
    QFETCH(int, found);
    m_disc->drives.append(QStringLiteral("drive1"));
    m_disc->supported = call != QStringLiteral("unsupported");
    m_disc->failing = call;
    LogCapture log;
    QCOMPARE(m_writer->recorders().size(), found);
    const QStringList lines = log.lines(QtWarningMsg);
    QVERIFY(step.isEmpty() || lines.first() == step + QStringLiteral(" result: 'c0aa0002'"));
    const bool asked = !call.contains(QStringLiteral("MsftDiscMaster2")) ||
                       call.contains(QStringLiteral("get_Count"));
    QCOMPARE(lines.contains(QStringLiteral("There were no writable devices detected!")),
             asked && found == 0);
}

void DiscWriterTest::looksAtDiscs_data()
{
    QTest::addColumn<bool>("blank");
    QTest::addColumn<int>("status");
    QTest::addColumn<int>("room"); // For a session.
    QTest::addColumn<bool>("erasable");
    QTest::addColumn<QString>("failing");
    QTest::addColumn<QString>("found"); // With the room in blocks.
    const QString none;
    QTest::newRow("blank") << true << 2 << 1000 << true << none << QStringLiteral("blank 1000 ");
    QTest::newRow("open") << false << 4 << 1000 << false << none
                          << QStringLiteral("appendable 1000 Holidays");
    QTest::newRow("open and rewritable") << false << 4 << 1000 << true << none
                                         << QStringLiteral("appendable erasable 1000 Holidays");
    QTest::newRow("full and rewritable")
        << false << 4 << 0 << true << none << QStringLiteral("erasable 2295104 Holidays");
    QTest::newRow("closed") << false << 0x4000 << 1000 << false << none
                            << QStringLiteral("0 Holidays");
    QTest::newRow("closed and rewritable")
        << false << 0x4000 << 1000 << true << none << QStringLiteral("erasable 2295104 Holidays");
    QTest::newRow("closed and foreign")
        << false << 0x4000 << 1000 << true << QStringLiteral("MsftFileSystemImage ImportFileSystem")
        << QStringLiteral("erasable 2295104 ");
    QTest::newRow("foreign") << false << 4 << 1000 << true
                             << QStringLiteral("MsftFileSystemImage ImportFileSystem")
                             << QStringLiteral("erasable 2295104 ");
    for (const char *call :
         {"CoCreateInstance MsftDiscRecorder2", "MsftDiscFormat2Data get_CurrentMediaStatus"})
        QTest::newRow(call) << true << 2 << 1000 << true << QString::fromLatin1(call)
                            << QStringLiteral("absent");
    QTest::newRow("no disc") << true << 0 << 1000 << true << none << QStringLiteral("absent");
}

void DiscWriterTest::looksAtDiscs()
{
    QFETCH(bool, blank);
    QFETCH(int, status);
    QFETCH(int, room);
    QFETCH(bool, erasable);
    QFETCH(QString, failing);
    QFETCH(QString, found);
    m_disc->blank = blank;
    m_disc->status = status;
    m_disc->erasable = erasable;
    m_disc->freeBlocks = room;
    m_disc->failing = failing;
    LogCapture log;
    const DiscMedia media = m_writer->media(QStringLiteral("drive0"));
    QString text = QStringLiteral("absent");
    if (media.present)
        text = QLatin1String(media.blank ? "blank " : "") +
               QLatin1String(media.appendable ? "appendable " : "") +
               QLatin1String(media.erasable ? "erasable " : "") +
               QStringLiteral("%1 %2").arg(media.freeBytes / 2048).arg(media.volumeName);
    QCOMPARE(text, found);
    QCOMPARE(log.lines(QtWarningMsg).size(), failing.isEmpty() ? 0 : 1);
}

/// With the system's own service, where it exists.
void DiscWriterTest::systemService()
{
    LogCapture log;
    const auto writer = createDiscWriter();
    const bool drives = !writer->recorders().isEmpty();
    const QStringList lines = log.lines(QtWarningMsg);
    const bool missing =
        lines.contains(QStringLiteral("Failed to create MsftDiscMaster2, result: '80040154'"));
    QCOMPARE(writer->hindrance().isEmpty(), !missing);
    QCOMPARE(lines.isEmpty(), drives);
    QVERIFY(!writer->media(QStringLiteral("no such drive")).present);
    QVERIFY(!writer->openSession(QStringLiteral("no such drive")));
}

QTEST_GUILESS_MAIN(DiscWriterTest)
#include "DiscWriterTest.moc"
