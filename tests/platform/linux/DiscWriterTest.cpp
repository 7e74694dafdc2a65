// SPDX-License-Identifier: GPL-3.0-or-later
#include "helpers/Files.h"
#include "helpers/LogCapture.h"
#include "helpers/Words.h"
#include "platform/linux/DiscWriterLinux.h"

#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>

#include <fcntl.h>
#include <functional>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

using namespace velmora;

namespace
{

const qint64 kMegabyte = 1024 * 1024;

QByteArray randomBytes(qint64 size)
{
    QVector<quint32> numbers(static_cast<int>(size / 4 + 1));
    QRandomGenerator(static_cast<quint32>(size)).fillRange(numbers.data(), numbers.size());
    return {reinterpret_cast<const char *>(numbers.constData()), static_cast<int>(size)};
}

/// Reads at most @p bytes from a pipe that may have no writer yet.
QByteArray readPipe(int pipe, qint64 bytes, const std::atomic_bool &ended)
{
    QByteArray all;
    QByteArray part(65536, '\0');
    while (all.size() < bytes) {
        const ssize_t count = ::read(pipe, part.data(), static_cast<size_t>(part.size()));
        if (count > 0)
            all.append(part.constData(), static_cast<int>(count));
        else if (ended)
            break;
        else
            std::this_thread::yield();
    }
    return all;
}

} // namespace

/// Burns to files and pipes that stand for drives, and looks at the result with xorriso.
class DiscWriterTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_video = makeVideo("holiday.mp4", 3 * kMegabyte + 12345);
        m_bytes = readFile(m_video);
        m_cancelled = false;
        m_progress = [](int, int) {};
    }

    void cleanup()
    {
        QCOMPARE(readFile(m_video), m_bytes); // Whatever happened.
    }

    void listsImages()
    {
        const auto recorders = DiscWriterLinux({image()}).recorders();
        QVERIFY(!recorders.isEmpty());
        QCOMPARE(recorders.last().id, drive(image()));
        QCOMPARE(recorders.last().volumes, QStringList{image()});
        LogCapture log;
        const bool real = recorders.size() > 1;
        QCOMPARE(DiscWriterLinux().recorders().isEmpty(), !real);
        QCOMPARE(log.lines().contains(QStringLiteral("There were no writable devices detected!")),
                 !real);
    }

    void blankDisc_data()
    {
        QTest::addColumn<qint64>("size");
        QTest::addColumn<QString>("name");
        QTest::newRow("plain") << 3 * kMegabyte << QStringLiteral("holiday.mp4");
        QTest::newRow("empty") << qint64(0) << QStringLiteral("empty.mp4");
        QTest::newRow("one byte more than a block") << qint64(2049) << QStringLiteral("a");
        QTest::newRow("odd name") << kMegabyte << QStringLiteral("Öl & Żółw - 日本 'x'.webm");
    }

    void blankDisc()
    {
        QFETCH(qint64, size);
        QFETCH(QString, name);
        const QString video = makeVideo("video", size);
        const DiscMedia before = m_writer.media(drive(image()));
        QVERIFY(before.present && before.blank);
        int last = -1;
        int steps = 0;
        m_progress = [&](int current, int total) {
            QVERIFY(current >= 0 && current <= total && current >= last);
            last = current;
            ++steps;
        };
        LogCapture log;
        QVERIFY(burn(drive(image()), video, name));
        QVERIFY(log.lines().contains(QStringLiteral("Burn writing")));
        QCOMPARE(extract(name), readFile(video));
        QVERIFY(size < kMegabyte || steps > 0);

        const DiscMedia media = m_writer.media(drive(image()));
        QVERIFY(!media.blank && media.appendable && media.erasable);
        QCOMPARE(media.volumeName, QStringLiteral("Sommer 2026"));
        QVERIFY(media.freeBytes > 0);
    }

    void furtherSessionsKeepTheFirst()
    {
        const QString film = QStringLiteral("film.mp4");
        QVERIFY(burn(drive(image()), m_video, film));
        const QString second = makeVideo("second", kMegabyte + 1);
        QVERIFY(burn(drive(image()), second, QStringLiteral("second.mp4")));
        const QString third = makeVideo("third", 17);
        QVERIFY(burn(drive(image()), third, film)); // A taken name gets a number.
        QCOMPARE(extract(film), m_bytes);
        QCOMPARE(extract(QStringLiteral("second.mp4")), readFile(second));
        QCOMPARE(extract(QStringLiteral("film (2).mp4")), readFile(third));
    }

    void finaliseCloses()
    {
        QVERIFY(burn(drive(image()), m_video, QStringLiteral("film.mp4"), true));
        const DiscMedia media = m_writer.media(drive(image()));
        QVERIFY(media.present && !media.blank && !media.appendable && media.erasable);
        QVERIFY(media.freeBytes > m_bytes.size()); // Once it is erased.
        const QByteArray disc = readFile(image());
        LogCapture log;
        QVERIFY(!burn(drive(image()), m_video, QStringLiteral("more.mp4")));
        QVERIFY(log.lines().contains(QStringLiteral("Invalid media type")));
        QVERIFY(readFile(image()) == disc);
        QCOMPARE(extract(QStringLiteral("film.mp4")), m_bytes);
        // Only erasing opens it again, and forgets what was there.
        QVERIFY(burn(drive(image()), m_video, QStringLiteral("more.mp4"), false, true));
        QVERIFY(m_writer.media(drive(image())).appendable);
        QCOMPARE(extract(QStringLiteral("more.mp4")), m_bytes);
        QCOMPARE(extract(QStringLiteral("film.mp4")), QByteArray());
    }

    void foreignDataNeedsErasing_data()
    {
        QTest::addColumn<int>("offset");
        QTest::newRow("at the start") << 1024;
        QTest::newRow("descriptors") << 20 * 2048;
        QTest::newRow("UDF") << 256 * 2048;
    }

    void foreignDataNeedsErasing()
    {
        QFETCH(int, offset);
        QByteArray foreign(4 << 20, '\0');
        foreign.replace(offset, 30, "something that is not ISO 9660");
        QVERIFY(writeFile(image(), foreign));
        const DiscMedia media = m_writer.media(drive(image()));
        QVERIFY(!media.blank && !media.appendable && media.erasable);
        QVERIFY(media.freeBytes > m_bytes.size()); // Once it is erased.
        QVERIFY(!burn(drive(image()), m_video, QStringLiteral("film.mp4")));
        QVERIFY(burn(drive(image()), m_video, QStringLiteral("film.mp4"), false, true));
        QCOMPARE(extract(QStringLiteral("film.mp4")), m_bytes);
    }

    void closedDiscIsRefused()
    {
        // A null-drive is one without a disc that could be written.
        QVERIFY(!m_writer.media(QStringLiteral("stdio:")).present);
        LogCapture log;
        QVERIFY(!burn(QStringLiteral("stdio:"), m_video, QStringLiteral("film.mp4")));
        QVERIFY(log.lines().contains(QStringLiteral("Invalid media type")));
    }

    void tooSmallDisc_data()
    {
        QTest::addColumn<bool>("used");
        QTest::newRow("blank") << false;
        QTest::newRow("with a session") << true;
    }

    void tooSmallDisc()
    {
        QFETCH(bool, used);
        QVERIFY(!used || burn(drive(image()), m_video, QStringLiteral("first.mp4")));
        const qint64 size = m_writer.media(drive(image())).freeBytes + 1;
        const QByteArray disc = readFile(image());
        QFile huge(path("huge"));
        QVERIFY(huge.open(QIODevice::WriteOnly));
        if (!huge.resize(size))
            QSKIP("This file system has no files with holes.");
        LogCapture log;
        QVERIFY(!burn(drive(image()), huge.fileName(), QStringLiteral("film.mp4")));
        QVERIFY(warned(log, "do not fit into"));
        QVERIFY(readFile(image()) == disc);
    }

    void discFillsUpWhileWriting()
    {
        LogCapture log;
        QVERIFY(!burn(QStringLiteral("stdio:/dev/full"), m_video, QStringLiteral("film.mp4")));
        QVERIFY(warned(log, "Write failed, result:"));
    }

    void troubleWhileWriting_data()
    {
        QTest::addColumn<int>("megabytes");
        QTest::newRow("drive vanishes") << 3;
        QTest::newRow("video shrinks") << 40;
        QTest::newRow("cancelled") << 64;
    }

    void troubleWhileWriting()
    {
        QFETCH(int, megabytes);
        const QByteArray trouble = QTest::currentDataTag();
        const QString video = makeVideo("film", megabytes * kMegabyte);
        QVERIFY(!burnToPipe(video, [&] {
            if (trouble == "video shrinks")
                QFile::resize(video, kMegabyte);
            m_cancelled = trouble == "cancelled";
            return trouble != "drive vanishes";
        }));
    }

    void sequentialDrive()
    {
        QByteArray disc;
        const auto always = [] { return true; };
        QVERIFY(burnToPipe(m_video, always, &disc));
        QVERIFY(writeFile(image(), disc));
        QCOMPARE(extract(QStringLiteral("film.mp4")), m_bytes);
    }

    void driveIsGone()
    {
        const QString gone = drive(path("no/such/folder/disc.img"));
        QVERIFY(!m_writer.media(gone).present);
        LogCapture log;
        QVERIFY(!m_writer.openSession(gone));
        QVERIFY(warned(log, "'InitializeDiscRecorder' failed, result:"));
        QVERIFY(!burn(drive(image()), path("no video"), QStringLiteral("film.mp4")));
        QVERIFY(warned(log, "AddFile failed, result:"));
    }

private:
    QString path(const char *name) const { return m_folder->filePath(QLatin1String(name)); }
    QString image() const { return path("disc.img"); }
    static QString drive(const QString &file) { return QStringLiteral("stdio:") + file; }
    static bool warned(const LogCapture &log, const char *text)
    {
        return !log.lines(QtWarningMsg).filter(QLatin1String(text)).isEmpty();
    }

    QString makeVideo(const char *name, qint64 size)
    {
        return writeFile(path(name), randomBytes(size)) ? path(name) : QString();
    }

    bool burn(const QString &driveId, const QString &video, const QString &name,
              bool finalize = false, bool erase = false)
    {
        const auto session = m_writer.openSession(driveId);
        return session && (!erase || session->erase(m_progress)) && session->checkMedia() &&
               session->createImage(video, name, QStringLiteral("Sommer 2026")) &&
               session->finishImage(finalize) && session->write(m_progress, m_cancelled);
    }

    /// What an independent program finds on the disc.
    QByteArray extract(const QString &name) const
    {
        const QString target = path("extracted");
        QFile::remove(target);
        QProcess process;
        process.start(QStringLiteral("xorriso"), words("-osirrox on -indev")
                                                     << drive(image()) << words("-extract")
                                                     << QLatin1Char('/') + name << target);
        process.waitForFinished(60000);
        return readFile(target);
    }

    /// A pipe is a drive that can only be written from start to end. Its reader goes away after the
    /// first megabyte if @p readsOn returns false.
    bool burnToPipe(const QString &video, const std::function<bool()> &readsOn,
                    QByteArray *disc = nullptr)
    {
        const QString pipe = path("pipe");
        const QByteArray file = QFile::encodeName(pipe);
        if (::mkfifo(file.constData(), 0600) != 0)
            qFatal("Cannot make a pipe");
        const int reader = ::open(file.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
        std::atomic_bool ended{false};
        QByteArray received;
        std::thread drain([&] {
            received = readPipe(reader, kMegabyte, ended);
            if (readsOn())
                received += readPipe(reader, 1LL << 40, ended);
            ::close(reader);
        });
        const bool succeeded =
            burn(drive(pipe), video, QStringLiteral("film.mp4"), disc != nullptr);
        ended = true;
        drain.join();
        if (disc)
            *disc = received;
        return succeeded;
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_video;
    QByteArray m_bytes; ///< Of m_video.
    DiscWriterLinux m_writer;
    std::atomic_bool m_cancelled{false};
    DiscProgress m_progress = [](int, int) {};
};

QTEST_GUILESS_MAIN(DiscWriterTest)
#include "DiscWriterTest.moc"
