// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/preview/PreviewSound.h"
#include "helpers/Files.h"

#include "app/Paths.h"
#include "generator/encoding/VideoUtil.h"
#include "helpers/MediaSamples.h"

#include <QtTest>

using namespace velmora;

namespace
{

constexpr qint64 kLength = 5000; // ms

} // namespace

class PreviewSoundTest : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        QVERIFY(MediaSamples::makeTone(m_music.filePath(QStringLiteral("tone.wav")),
                                       {440, 2, 44100, 2}));
        QVERIFY(MediaSamples::makeTone(m_music.filePath(QStringLiteral("tone.ogg")),
                                       {880, 1, 48000, 2}, MediaSamples::vorbis()));
    }

    void init()
    {
        m_data = std::make_unique<QTemporaryDir>();
        qputenv("VELMORA_DATA_DIR", QFile::encodeName(m_data->path()));
        m_sound = std::make_unique<PreviewSound>();
    }

    void cleanup()
    {
        m_sound.reset();
        QVERIFY2(cached().isEmpty(), qPrintable(cached().join(QLatin1Char(' '))));
        QVERIFY(QDir(Paths::cacheFolder()).isEmpty());
    }

    void trackIsThatOfARender_data()
    {
        QTest::addColumn<int>("offset");
        QTest::addColumn<int>("fade");
        QTest::addColumn<bool>("loop");
        QTest::addColumn<double>("seconds");
        QTest::newRow("plain") << 0 << 0 << false << 3.0;
        QTest::newRow("skipped and faded") << 1 << 1 << false << 2.0;
        QTest::newRow("delayed") << -1 << 0 << false << 4.0;
        QTest::newRow("looped") << 0 << 0 << true << 6.0;
        QTest::newRow("looped and faded") << 0 << 1 << true << 5.0;
    }
    void trackIsThatOfARender()
    {
        QFETCH(int, offset);
        QFETCH(int, fade);
        QFETCH(bool, loop);
        QFETCH(double, seconds);
        const ProjectSound wanted = sound(offset, fade, loop);
        const QSignalSpy changed(m_sound.get(), &PreviewSound::changed);
        m_sound->require(wanted, kLength);
        QVERIFY(m_sound->isPending());
        QVERIFY(m_sound->track().isEmpty());
        QTRY_COMPARE(changed.size(), 1);
        QVERIFY2(!m_sound->track().isEmpty(), qPrintable(m_sound->errorText()));
        QCOMPARE(cached().filter(QStringLiteral(".wav")),
                 QStringList(QFileInfo(m_sound->track()).fileName()));

        QTemporaryDir cache;
        EncodingContext context;
        context.cachePath = cache.path();
        context.encoder = MediaSamples::encoder();
        VideoUtil util(context);
        QString track = util.prepareAudio(wanted.list, cache.filePath(QStringLiteral("audio")),
                                          offset, fade, kLength);
        if (loop) {
            QString looped = cache.filePath(QStringLiteral("video/looped.wav"));
            QVERIFY(util.prepareAudioLoop(track, kLength, looped, fade));
            track = looped;
        }
        QVERIFY(readFile(m_sound->track()).size() > 10000);
        QCOMPARE(readFile(m_sound->track()), readFile(track));
        const double heard = MediaSamples::seconds(MediaSamples::listen(m_sound->track()));
        QVERIFY2(qAbs(heard - seconds) < 0.1, qPrintable(QString::number(heard)));
    }

    void isMadeAgainOnlyForAChange_data()
    {
        QTest::addColumn<int>("fade");
        QTest::addColumn<bool>("loop");
        QTest::addColumn<qint64>("length");
        QTest::addColumn<bool>("again");
        QTest::newRow("nothing") << 0 << false << kLength << false;
        QTest::newRow("fade") << 1 << false << kLength << true;
        QTest::newRow("loop") << 0 << true << kLength << true;
        QTest::newRow("length") << 0 << false << kLength + 1000 << true;
    }
    void isMadeAgainOnlyForAChange()
    {
        QFETCH(int, fade);
        QFETCH(bool, loop);
        QFETCH(qint64, length);
        QFETCH(bool, again);
        m_sound->require(sound(), kLength);
        QTRY_VERIFY(!m_sound->isPending());
        const QString track = m_sound->track();
        m_sound->require(sound(0, fade, loop), length);
        QCOMPARE(m_sound->isPending(), again);
        QCOMPARE(QFile::exists(track), !again);
        QTRY_VERIFY(!m_sound->isPending());
        QCOMPARE(m_sound->track() == track, !again);
    }

    void lastRequestCounts()
    {
        const QSignalSpy changed(m_sound.get(), &PreviewSound::changed);
        for (int fade = 0; fade < 4; ++fade)
            m_sound->require(sound(0, fade), kLength);
        QTRY_COMPARE(changed.size(), 1);
        QVERIFY(m_sound->isFor(sound(0, 3), kLength));
        QCOMPARE(cached().size(), 1);
        m_sound->require(sound(), kLength); // and one that ends in the middle of its work
    }

    void unreadableMusicIsNamedAndTriedAgain()
    {
        ProjectSound wanted = sound();
        QString &gone = wanted.list.items[1].fileName;
        gone = m_music.filePath(QStringLiteral("gone.mp3"));
        m_sound->require(wanted, kLength);
        QTRY_VERIFY(!m_sound->isPending());
        QVERIFY(m_sound->track().isEmpty());
        QVERIFY2(m_sound->errorText().contains(QLatin1String("gone.mp3")),
                 qPrintable(m_sound->errorText()));
        // Once it is back, the same request succeeds.
        QVERIFY(MediaSamples::makeTone(gone, {440, 1, 44100, 2}));
        m_sound->require(wanted, kLength);
        QTRY_VERIFY(!m_sound->isPending());
        QVERIFY2(!m_sound->track().isEmpty(), qPrintable(m_sound->errorText()));
        QVERIFY(QFile::remove(gone));
    }

    void noMusicNeedsNoTrack()
    {
        m_sound->require(sound(), kLength);
        m_sound->require(ProjectSound(), kLength);
        QVERIFY(!m_sound->isPending());
        QVERIFY(m_sound->track().isEmpty());
        QVERIFY(m_sound->errorText().isEmpty());
    }

private:
    ProjectSound sound(int offset = 0, int fade = 0, bool loop = false) const
    {
        ProjectSound sound;
        sound.list.items = {{m_music.filePath(QStringLiteral("tone.wav")), QString()},
                            {m_music.filePath(QStringLiteral("tone.ogg")), QString()}};
        sound.list.offset = offset;
        sound.fade = fade;
        sound.loop = loop;
        return sound;
    }
    /// All files below the cache folder but the lock.
    static QStringList cached()
    {
        QStringList files;
        QDirIterator it(Paths::cacheFolder(), QDir::Files | QDir::Hidden,
                        QDirIterator::Subdirectories);
        while (it.hasNext()) {
            it.next();
            if (it.fileName() != QLatin1String("render.lock"))
                files.append(it.fileName());
        }
        return files;
    }

    QTemporaryDir m_music;
    std::unique_ptr<QTemporaryDir> m_data;
    std::unique_ptr<PreviewSound> m_sound;
};

QTEST_MAIN(PreviewSoundTest)
#include "PreviewSoundTest.moc"
