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
    void init()
    {
        m_disc = std::make_unique<FakeDisc>();
        m_disc->failure = static_cast<HRESULT>(0xc0aa0002);
        m_writer = std::make_unique<DiscWriterWindows>(std::make_unique<FakeImapi>(*m_disc));
    }

    /// Whatever happened, every object is released.
    void cleanup() { QCOMPARE(m_disc->objects, 0); }

    void listsRecorders()
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

    void discoveryFailures_data()
    {
        QTest::addColumn<QString>("step");
        QTest::addColumn<int>("found");
        const auto row = [](const char *call, const char *step, int found) {
            QTest::newRow(call) << step << found;
        };
        row("CoCreateInstance MsftDiscMaster2", "Failed to create MsftDiscMaster2,", 0);
        row("MsftDiscMaster2 get_IsSupportedEnvironment",
            "IDiscMaster2->get_IsSupportedEnvironment failed,", 0);
        row("MsftDiscMaster2 get_Count", "IDiscMaster2->get_Count failed,", 0);
        row("MsftDiscMaster2 get_Item 0", "m_DiscMaster->get_Item failed,", 1);
        row("CoCreateInstance MsftDiscRecorder2", "'CoCreateInstance MsftDiscRecorder2' failed,",
            0);
        row("MsftDiscRecorder2 InitializeDiscRecorder drive0", "InitializeDiscRecorder failed,", 1);
        row("MsftDiscRecorder2 get_ProductId", "get_ProductId failed,", 0);
        row("MsftDiscRecorder2 get_VolumePathNames", "get_VolumePathNames failed,", 0);
        row("unsupported", "", 0);
    }

    void discoveryFailures()
    {
        const QString call = QString::fromLatin1(QTest::currentDataTag());
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

    void looksAtDiscs_data()
    {
        QTest::addColumn<int>("status");
        QTest::addColumn<int>("room"); // For a session.
        QTest::addColumn<bool>("erasable");
        QTest::addColumn<QString>("failing");
        QTest::addColumn<QString>("found"); // With the room in blocks.
        const auto row = [](const char *name, int status, int room, bool erasable,
                            const char *found, const char *failing = "") {
            QTest::newRow(name) << status << room << erasable << QString::fromLatin1(failing)
                                << found;
        };
        const char *foreign = "MsftFileSystemImage ImportFileSystem";
        const char *getStatus = "MsftDiscFormat2Data get_CurrentMediaStatus";
        row("blank", 2, 1000, true, "blank 1000 ");
        row("open", 4, 1000, false, "appendable 1000 Holidays");
        row("open and rewritable", 4, 1000, true, "appendable erasable 1000 Holidays");
        row("full and rewritable", 4, 0, true, "erasable 2295104 Holidays");
        row("closed", 0x4000, 1000, false, "0 Holidays");
        row("closed and rewritable", 0x4000, 1000, true, "erasable 2295104 Holidays");
        row("closed and foreign", 0x4000, 1000, true, "erasable 2295104 ", foreign);
        row("foreign", 4, 1000, true, "erasable 2295104 ", foreign);
        row("drive fails", 2, 1000, true, "absent", "CoCreateInstance MsftDiscRecorder2");
        row("status fails", 2, 1000, true, "absent", getStatus);
        row("no disc", 0, 1000, true, "absent");
    }

    void looksAtDiscs()
    {
        QFETCH(int, status);
        QFETCH(int, room);
        QFETCH(bool, erasable);
        QFETCH(QString, failing);
        m_disc->blank = status < 4;
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
        QTEST(text, "found");
        QCOMPARE(log.lines(QtWarningMsg).size(), failing.isEmpty() ? 0 : 1);
    }

    /// With the system's own service, where it exists.
    void systemService()
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

private:
    std::unique_ptr<FakeDisc> m_disc;
    std::unique_ptr<DiscWriterWindows> m_writer;
};

QTEST_GUILESS_MAIN(DiscWriterTest)
#include "DiscWriterTest.moc"
