// SPDX-License-Identifier: GPL-3.0-or-later
#include "helpers/DeadLock.h"
#include "helpers/Files.h"
#include "helpers/LogCapture.h"
#include "helpers/Words.h"
#include "platform/windows/DeletableLink.h"
#include "platform/windows/DiscWriterWindows.h"
#include "platform/windows/FakeImapi.h"

#include <QDir>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

using namespace velmora;

namespace
{

const QString kFailed = QStringLiteral(" failed, result: 'c0aa0002'");

// The calls of a burn of "holiday.mp4" as "film.mp4" on a disc "Sommer 2026", in order, as the
// service's documentation asks for them and as FakeImapi notes them.
const char kOpen[] = "CoCreateInstance MsftDiscRecorder2\n"
                     "MsftDiscRecorder2 InitializeDiscRecorder drive0\n";
const char kErase[] = "CoCreateInstance MsftDiscFormat2Erase\n"
                      "MsftDiscFormat2Erase put_ClientName Velmora1\n"
                      "MsftDiscFormat2Erase put_Recorder MsftDiscRecorder2\n"
                      "MsftDiscFormat2Erase put_FullErase 0\n"
                      "LoadRegTypeLib\n"
                      "MsftDiscFormat2Erase QueryInterface\n"
                      "IConnectionPointContainer FindConnectionPoint DDiscFormat2EraseEvents\n"
                      "IConnectionPoint Advise\n"
                      "MsftDiscFormat2Erase EraseMedia\n";
const char kCheck[] = "CoCreateInstance MsftDiscFormat2Data\n"
                      "MsftDiscFormat2Data put_Recorder MsftDiscRecorder2\n"
                      "MsftDiscFormat2Data get_CurrentMediaStatus\n"
                      "MsftDiscFormat2Data put_ClientName Velmora2\n"
                      "MsftDiscFormat2Data get_SupportedMediaTypes\n"
                      "MsftDiscFormat2Data get_CurrentPhysicalMediaType\n";
const char kImage[] = "CoCreateInstance MsftFileSystemImage\n"
                      "MsftFileSystemImage get_Root\n"
                      "MsftDiscFormat2Data get_MediaHeuristicallyBlank\n";
const char kBlank[] = "MsftFileSystemImage ChooseImageDefaults MsftDiscRecorder2\n";
const char kImport[] = "MsftDiscFormat2Data get_MultisessionInterfaces\n"
                       "MsftFileSystemImage put_MultisessionInterfaces IMultisession\n"
                       "MsftFileSystemImage ImportFileSystem\n";
const char kFile[] = "MsftFileSystemImage put_VolumeName Sommer 2026\n"
                     "SHCreateStreamOnFileEx video.mp4 04000040\n"
                     "MsftFileSystemImage Exists \\film.mp4\n"
                     "IFsiDirectoryItem AddFile film.mp4, video\n";
const char kWrite[] = "MsftFileSystemImage CreateResultImage\n"
                      "IFileSystemImageResult get_ImageStream\n"
                      "MsftDiscFormat2Data put_ForceMediaToBeClosed 0\n"
                      "LoadRegTypeLib\n"
                      "MsftDiscFormat2Data QueryInterface\n"
                      "IConnectionPointContainer FindConnectionPoint DDiscFormat2DataEvents\n"
                      "IConnectionPoint Advise\n"
                      "MsftDiscFormat2Data Write image\n";

QStringList lines(const QByteArray &calls)
{
    return QString::fromLatin1(calls).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

QStringList burnCalls(bool erase, bool blank)
{
    return lines(QByteArray(kOpen) + (erase ? kErase : "") + kCheck + kImage +
                 (blank ? kBlank : kImport) + kFile + kWrite);
}

} // namespace

/// Burns with objects that note each call, and makes each of them fail.
class DiscSessionTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }

    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_video = m_folder->filePath(QStringLiteral("holiday.mp4"));
        QVERIFY(writeFile(m_video, "a video"));
        m_disc = std::make_unique<FakeDisc>();
        m_disc->seconds = {{1, 4}, {4, 4}};
        m_disc->failure = static_cast<HRESULT>(0xc0aa0002);
        m_writer = std::make_unique<DiscWriterWindows>(std::make_unique<FakeImapi>(*m_disc));
        m_progress = std::make_shared<QStringList>();
        m_cancelled = false;
        m_title = QStringLiteral("Sommer 2026");
    }

    /// Whatever happened, every object is released and the video is as it was.
    void cleanup()
    {
        QCOMPARE(m_disc->objects, 0);
        QVERIFY(!m_disc->sink);
        QCOMPARE(m_progress.use_count(), 1); // The sinks, which hold it, are gone too.
        QCOMPARE(leftovers(), QStringList());
        QCOMPARE(readFile(m_video), QByteArray("a video"));
        QFile::setPermissions(m_video, QFile::ReadOwner | QFile::WriteOwner);
    }

    void burns_data()
    {
        QTest::addColumn<bool>("blank");
        QTest::addColumn<bool>("erase");
        QTest::addColumn<bool>("finalize");
        QTest::newRow("blank") << true << false << false;
        QTest::newRow("further session") << false << false << false;
        QTest::newRow("erased first") << true << true << false;
        QTest::newRow("finalised") << true << false << true;
    }

    void burns()
    {
        QFETCH(bool, blank);
        QFETCH(bool, erase);
        QFETCH(bool, finalize);
        m_disc->blank = blank;
        LogCapture log;
        QVERIFY(burn(erase, finalize));
        QStringList calls = burnCalls(erase, blank);
        if (finalize)
            calls.replaceInStrings(QStringLiteral("Closed 0"), QStringLiteral("Closed -1"));
        QCOMPARE(m_disc->calls, calls);
        QCOMPARE(log.lines(), (QStringList{QStringLiteral("Current media status: '2'."),
                                           QStringLiteral("Burn writing")}));
        QCOMPARE(*m_progress, words(erase ? "1/4 4/4 1/4 4/4" : "1/4 4/4"));
        QCOMPARE(m_disc->streamContent, QByteArray("a video"));
    }

    void failingStep_data()
    {
        QTest::addColumn<QString>("step");
        const char *const rows[][2] = {
            {"CoCreateInstance MsftDiscRecorder2", "'CoCreateInstance MsftDiscRecorder2'"},
            {"MsftDiscRecorder2 InitializeDiscRecorder drive0", "'InitializeDiscRecorder'"},
            {"CoCreateInstance MsftDiscFormat2Erase", "'CoCreateInstance MsftDiscFormat2Erase'"},
            {"MsftDiscFormat2Erase put_ClientName Velmora1", "'put_ClientName 1'"},
            {"MsftDiscFormat2Erase put_Recorder MsftDiscRecorder2", "'put_Recorder'"},
            {"MsftDiscFormat2Erase put_FullErase 0", "'put_FullErase'"},
            {"MsftDiscFormat2Erase EraseMedia", "EraseMedia"},
            {"CoCreateInstance MsftDiscFormat2Data", "'CoCreateInstance MsftDiscFormat2Data'"},
            {"MsftDiscFormat2Data put_Recorder MsftDiscRecorder2", "'put_Recorder'"},
            {"MsftDiscFormat2Data get_CurrentMediaStatus", "'get_CurrentMediaStatus'"},
            {"MsftDiscFormat2Data put_ClientName Velmora2", "'put_ClientName 2'"},
            {"MsftDiscFormat2Data get_SupportedMediaTypes", "'get_SupportedMediaTypes'"},
            {"MsftDiscFormat2Data get_CurrentPhysicalMediaType", "'get_CurrentPhysicalMediaType'"},
            {"CoCreateInstance MsftFileSystemImage", "'CoCreateInstance MsftFileSystemImage'"},
            {"MsftFileSystemImage get_Root", "'get_Root'"},
            {"MsftDiscFormat2Data get_MediaHeuristicallyBlank", "'get_MediaHeuristicallyBlank'"},
            {"MsftFileSystemImage ChooseImageDefaults MsftDiscRecorder2", "'ChooseImageDefaults'"},
            {"MsftDiscFormat2Data get_MultisessionInterfaces", "'get_MultisessionInterfaces'"},
            {"MsftFileSystemImage put_MultisessionInterfaces IMultisession",
             "'put_MultisessionInterfaces'"},
            {"MsftFileSystemImage ImportFileSystem", "'ImportFileSystem'"},
            {"MsftFileSystemImage put_VolumeName Sommer 2026", "'put_VolumeName'"},
            {"SHCreateStreamOnFileEx video.mp4 04000040", "'SHCreateStreamOnFileEx'"},
            {"IFsiDirectoryItem AddFile film.mp4, video", "AddFile"},
            {"MsftFileSystemImage CreateResultImage", "'CreateResultImage'"},
            {"IFileSystemImageResult get_ImageStream", "'get_ImageStream'"},
            {"MsftDiscFormat2Data put_ForceMediaToBeClosed 0", "'put_ForceMediaToBeClosed'"},
            {"MsftDiscFormat2Data Write image", "Write"},
        };
        for (const auto &row : rows)
            QTest::newRow(row[0]) << row[1];
    }

    void failingStep()
    {
        const QString call = QString::fromLatin1(QTest::currentDataTag());
        QFETCH(QString, step);
        m_disc->blank = call.contains(QStringLiteral("ChooseImageDefaults"));
        m_disc->failing = call;
        const QStringList all = burnCalls(true, m_disc->blank);
        LogCapture log;
        QVERIFY(!burn(true));
        QCOMPARE(m_disc->calls, all.mid(0, all.indexOf(call) + 1));
        QCOMPARE(log.lines(QtWarningMsg), QStringList{step + kFailed});
    }

    void eventsAreOptional_data()
    {
        QTest::addColumn<QStringList>("lines");
        const QString query = QStringLiteral(
            "QueryInterface IID_IConnectionPointContainer failed, result: '80004002'");
        const QString find = QStringLiteral("FindConnectionPoint") + kFailed;
        const QString advise = QStringLiteral("Advise") + kFailed;
        const QString load = QStringLiteral("LoadRegTypeLib LIBID_IMAPILib2") + kFailed;
        const QString none =
            QStringLiteral("GetTypeInfoOfGuid IID_DDiscFormat2%1Events failed, result: '8002802b'");
        QTest::newRow("LoadRegTypeLib") << QStringList{load, load};
        QTest::newRow("no description")
            << QStringList{none.arg(QStringLiteral("Erase")), none.arg(QStringLiteral("Data"))};
        QTest::newRow("MsftDiscFormat2Erase QueryInterface") << QStringList{query};
        QTest::newRow("MsftDiscFormat2Data QueryInterface") << QStringList{query};
        QTest::newRow("IConnectionPointContainer FindConnectionPoint DDiscFormat2EraseEvents")
            << QStringList{find};
        QTest::newRow("IConnectionPointContainer FindConnectionPoint DDiscFormat2DataEvents")
            << QStringList{find};
        QTest::newRow("IConnectionPoint Advise") << QStringList{advise, advise};
    }

    void eventsAreOptional()
    {
        const QString call = QString::fromLatin1(QTest::currentDataTag());
        QFETCH(QStringList, lines);
        m_disc->failing = call;
        m_disc->describesEvents = call != QStringLiteral("no description");
        LogCapture log;
        QVERIFY(burn(true));
        QCOMPARE(log.lines(QtWarningMsg), lines);
        QCOMPARE(m_disc->calls.last(), QStringLiteral("MsftDiscFormat2Data Write image"));
        QCOMPARE(m_progress->size(), lines.size() == 2 ? 0 : 2);
    }

    void noApartment()
    {
        QVERIFY(SUCCEEDED(CoInitializeEx(nullptr, COINIT_MULTITHREADED)));
        LogCapture log;
        QVERIFY(!burn());
        CoUninitialize();
        QCOMPARE(log.lines(),
                 QStringList{QStringLiteral("'CoInitializeEx' failed, result: '80010106'")});
        QCOMPARE(m_disc->calls, QStringList());
    }

    void unsupportedMedium()
    {
        m_disc->mediaType = 1;
        LogCapture log;
        QVERIFY(!burn());
        QCOMPARE(log.lines(QtWarningMsg), QStringList{QStringLiteral("Invalid media type")});
        QCOMPARE(m_disc->calls, lines(QByteArray(kOpen) + kCheck));
    }

    void badEventsAreLogged_data()
    {
        QTest::addColumn<int>("elapsed");
        QTest::addColumn<int>("expected");
        QTest::addColumn<QString>("line");
        QTest::newRow("other arguments") << -1 << 4 << "Getting IDiscFormat2DataEventArgs failed";
        QTest::newRow("no times") << 1 << -1 << "Failed get times";
    }

    void badEventsAreLogged()
    {
        QFETCH(int, elapsed);
        QFETCH(int, expected);
        QFETCH(QString, line);
        m_disc->seconds = {{elapsed, expected}, {2, 4}};
        LogCapture log;
        QVERIFY(burn());
        QCOMPARE(log.lines(QtWarningMsg), QStringList{line});
        QCOMPARE(*m_progress, words("2/4"));
    }

    void cancelStops()
    {
        m_cancelled = true;
        m_disc->seconds = {{1, 4}};
        m_disc->failing = QStringLiteral("MsftDiscFormat2Data Write image");
        LogCapture log;
        QVERIFY(!burn());
        QCOMPARE(m_disc->calls.mid(m_disc->calls.size() - 2),
                 (QStringList{QStringLiteral("MsftDiscFormat2Data CancelWrite"), m_disc->failing}));
    }

    void namesAreMadeToFit()
    {
        m_disc->blank = false;
        m_disc->files = QStringList{QStringLiteral("film.mp4"), QStringLiteral("film (2).mp4")};
        m_title = QStringLiteral("Sommer 2026 am") + QString::fromUcs4(U"\U0001F600");
        QVERIFY(burn());
        const QString calls = m_disc->calls.join(QLatin1Char('\n'));
        QVERIFY(calls.contains(QStringLiteral("IFsiDirectoryItem AddFile film (3).mp4, video\n")));
        QVERIFY(
            calls.contains(QStringLiteral("MsftFileSystemImage put_VolumeName Sommer 2026 am\n")));
    }

    void videoSurvives_data()
    {
        QTest::addColumn<bool>("readOnly");
        QTest::addColumn<int>("names");
        QTest::addColumn<QString>("file");
        QTest::newRow("linked") << false << 2 << "holiday.mp4";
        QTest::newRow("read-only, copied") << true << 1 << "holiday.mp4";
        QTest::newRow("long name") << false << 2 << QString(230, QLatin1Char('x'));
    }

    void videoSurvives()
    {
        QFETCH(bool, readOnly);
        QFETCH(int, names);
        QFETCH(QString, file);
        m_video = m_folder->filePath(file);
        QVERIFY(writeFile(m_video, "a video"));
        if (readOnly)
            QVERIFY(QFile::setPermissions(m_video, QFile::ReadOwner));
        QVERIFY(burn());
        QCOMPARE(static_cast<int>(m_disc->streamNames), names);
        QCOMPARE(m_disc->streamContent, QByteArray("a video"));

        // The system's own stream, whether or not it deletes.
        DeletableLink link;
        QVERIFY(link.create(m_video));
        QVERIFY(link.path().size() < MAX_PATH);
        ComPtr<IStream> stream;
        const auto *path = reinterpret_cast<const wchar_t *>(link.path().utf16());
        QVERIFY(
            SUCCEEDED(ImapiFactory().openFile(path, 0x04000040, stream.ReleaseAndGetAddressOf())));
        char content[7] = {};
        QVERIFY(SUCCEEDED(stream->Read(content, sizeof(content), nullptr)));
        QCOMPARE(QByteArray(content, sizeof(content)), QByteArray("a video"));
    }

    void leftoversAreSwept()
    {
        DeletableLink live;
        QVERIFY(live.create(m_video));
        const QString cache = QStandardPaths::writableLocation(QStandardPaths::CacheLocation);
        const QString dead = cache + QStringLiteral("/burn-dead01");
        QVERIFY(QDir().mkpath(dead));
        QVERIFY(writeFile(dead + QStringLiteral("/video.mp4"), "a video"));
        QVERIFY(writeFile(dead + QLatin1Char('/') + DeletableLink::kLockFile, deadLock()));
        removeBurnLeftovers();
        QVERIFY(!QFileInfo::exists(dead));
        QVERIFY(QFileInfo::exists(live.path()));
    }

    void missingVideo()
    {
        const QString aside = m_video + QStringLiteral(".aside");
        QVERIFY(QFile::rename(m_video, aside));
        LogCapture log;
        const bool burned = burn();
        QVERIFY(QFile::rename(aside, m_video));
        QVERIFY(!burned);
        QCOMPARE(
            log.lines(QtWarningMsg),
            QStringList{QStringLiteral("'SHCreateStreamOnFileEx' failed, result: '80070002'")});
    }

private:
    bool burn(bool erase = false, bool finalize = false)
    {
        const DiscProgress progress = [to = m_progress](int current, int total) {
            to->append(QStringLiteral("%1/%2").arg(current).arg(total));
        };
        const auto session = m_writer->openSession(QStringLiteral("drive0"));
        return session && (!erase || session->erase(progress)) && session->checkMedia() &&
               session->createImage(m_video, QStringLiteral("film.mp4"), m_title) &&
               session->finishImage(finalize) && session->write(progress, m_cancelled);
    }

    /// What burning leaves where it makes links.
    QStringList leftovers() const
    {
        const QString cache = QStandardPaths::writableLocation(QStandardPaths::CacheLocation);
        const QStringList pattern{QStringLiteral("burn-*")};
        return QDir(cache).entryList(pattern) + QDir(m_folder->path()).entryList(pattern);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_video;
    std::unique_ptr<FakeDisc> m_disc;
    std::unique_ptr<DiscWriterWindows> m_writer;
    std::shared_ptr<QStringList> m_progress;
    std::atomic_bool m_cancelled{false};
    QString m_title;
};

QTEST_GUILESS_MAIN(DiscSessionTest)
#include "DiscSessionTest.moc"
