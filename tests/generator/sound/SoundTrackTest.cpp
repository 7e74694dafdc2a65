// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/encoding/VideoUtil.h"
#include "helpers/Files.h"
#include "helpers/MediaSamples.h"
#include "helpers/Words.h"

#include <QtTest>

using namespace velmora;

namespace
{

const QVector<int> kTones{400, 600, 900, 1300, 1900};

} // namespace

class SoundTrackTest : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        const auto make = [this](const char *name, MediaSamples::Tone tone,
                                 const QStringList &options = {}) {
            return MediaSamples::makeTone(file(QLatin1String(name)), tone, options);
        };
        const QStringList vorbis = MediaSamples::vorbis();
        QVERIFY(
            MediaSamples::makeToneWithCover(file(QStringLiteral("400.mp3")), {400, 2, 44100, 2}));
        QVERIFY(make("600.m4a", {600, 2, 48000, 1}));
        QVERIFY(make("900.wav", {900, 2, 22050, 1}));
        QVERIFY(make("1300.ogg", {1300, 2, 48000, 2}, vorbis));
        QVERIFY(make("1900.ogg", {1900, 2, 44100, 1}, vorbis));
        QVERIFY(make("600.wma", {600, 2, 44100, 2}));
        QVERIFY(make("1900.flac", {1900, 2, 48000, 6}));
        QVERIFY(make("1300.wav", {1300, 2, 22050, 1}));
        QVERIFY(make("long.wav", {900, 6, 44100, 2}));
    }

    void joinsPlaylists_data()
    {
        QTest::addColumn<QString>("names");
        QTest::addColumn<QVector<int>>("tones");
        using Tones = QVector<int>;
        QTest::newRow("mp3 alone") << "400.mp3" << Tones{400};
        QTest::newRow("ogg alone") << "1300.ogg" << Tones{1300};
        QTest::newRow("surround alone") << "1900.flac" << Tones{1900};
        QTest::newRow("alike WAV files") << "1300.wav 900.wav" << Tones{1300, 900};
        QTest::newRow("one file twice") << "900.wav 900.wav" << Tones{900, 900};
        QTest::newRow("two rates of one format") << "1900.ogg 1300.ogg" << Tones{1900, 1300};
        QTest::newRow("every format") << "400.mp3 600.m4a 900.wav 1300.ogg 1900.flac 600.wma"
                                      << Tones{400, 600, 900, 1300, 1900, 600};
    }
    void joinsPlaylists()
    {
        QFETCH(QString, names);
        QFETCH(QVector<int>, tones);
        const QString track = prepare(words(names.toLatin1()), 0, 0, 60000);
        QVERIFY2(!track.isEmpty(), qPrintable(m_error));
        QCOMPARE(track, m_cache->filePath(QStringLiteral("video/audio_stream.wav")));

        const MediaSamples::Sound sound = MediaSamples::listen(track);
        QVERIFY2(qAbs(MediaSamples::seconds(sound) - 2 * tones.size()) < 0.05 * tones.size() + 0.05,
                 qPrintable(QString::number(MediaSamples::seconds(sound))));
        for (int i = 0; i < tones.size(); ++i)
            QCOMPARE(MediaSamples::tone(sound, 2 * i + 0.5, 2 * i + 1.6, kTones), tones.at(i));
    }

    void placesTheMusic_data()
    {
        QTest::addColumn<QString>("names");
        QTest::addColumn<int>("offset");
        QTest::addColumn<int>("length");
        QTest::addColumn<double>("seconds");
        QTest::addColumn<double>("silence");
        QTest::addColumn<int>("firstTone");
        const QString two = QStringLiteral("900.wav 1300.wav");
        QTest::newRow("cut to the video") << two << 0 << 3250 << 3.25 << 0.0 << 900;
        QTest::newRow("offset into the second file") << two << 2 << 1500 << 1.5 << 0.0 << 1300;
        QTest::newRow("offset beyond the music") << two << 9 << 3500 << 3.5 << 3.5 << 0;
        QTest::newRow("silence before mono") << two << -1 << 3000 << 3.0 << 1.0 << 900;
        QTest::newRow("silence before stereo")
            << "400.mp3 900.wav" << -2 << 5000 << 5.0 << 2.0 << 400;
        QTest::newRow("silence and all of the music") << two << -2 << 9000 << 6.0 << 2.0 << 900;
        QTest::newRow("silence longer than the video") << two << -9 << 3000 << 3.0 << 3.0 << 0;
    }
    void placesTheMusic()
    {
        QFETCH(QString, names);
        QFETCH(int, offset);
        QFETCH(int, length);
        QFETCH(double, seconds);
        QFETCH(double, silence);
        const QString track = prepare(words(names.toLatin1()), offset, 0, length);
        QVERIFY2(!track.isEmpty(), qPrintable(m_error));

        const MediaSamples::Sound sound = MediaSamples::listen(track);
        QVERIFY2(qAbs(MediaSamples::seconds(sound) - seconds) < 0.03,
                 qPrintable(QString::number(MediaSamples::seconds(sound))));
        QVERIFY(MediaSamples::level(sound, 0, silence - 0.05) < 1e-4);
        QTEST(MediaSamples::tone(sound, silence + 0.1, silence + 1.2, kTones), "firstTone");
    }

    void fadesBothEnds_data()
    {
        QTest::addColumn<int>("offset");
        QTest::addColumn<int>("fade");
        QTest::addColumn<int>("length");
        QTest::addColumn<double>("begin"); // s, of what is heard
        QTest::addColumn<double>("end");
        QTest::addColumn<double>("fadeSeconds");
        QTest::newRow("at the video's end") << 0 << 1 << 5000 << 0.0 << 5.0 << 1.0;
        QTest::newRow("at the music's end") << 0 << 1 << 9000 << 0.0 << 6.0 << 1.0;
        QTest::newRow("with an offset") << 3 << 1 << 9000 << 0.0 << 3.0 << 1.0;
        QTest::newRow("behind silence") << -2 << 1 << 6000 << 2.0 << 6.0 << 1.0;
        QTest::newRow("longer than half") << 0 << 30 << 4000 << 0.0 << 4.0 << 2.0;
    }
    void fadesBothEnds()
    {
        QFETCH(int, offset);
        QFETCH(int, fade);
        QFETCH(int, length);
        QFETCH(double, begin);
        QFETCH(double, end);
        QFETCH(double, fadeSeconds);
        const QString track = prepare({QStringLiteral("long.wav")}, offset, fade, length);
        QVERIFY2(!track.isEmpty(), qPrintable(m_error));

        const MediaSamples::Sound sound = MediaSamples::listen(track);
        QVERIFY(qAbs(MediaSamples::seconds(sound) - end) < 0.03);
        const double full = MediaSamples::level(
            sound, begin + fadeSeconds - 0.02, qMax(begin + fadeSeconds, end - fadeSeconds) + 0.02);
        QVERIFY(full > 0.3);
        const auto share = [&](double at) {
            return MediaSamples::level(sound, at - 0.02, at + 0.02) / full;
        };
        QVERIFY(share(begin + 0.02) < 0.1);
        QVERIFY(qAbs(share(begin + fadeSeconds / 2) - 0.5) < 0.1);
        QVERIFY(qAbs(share(end - fadeSeconds / 2) - 0.5) < 0.1);
        QVERIFY(share(end - 0.02) < 0.1);
    }

    void keepsTheFormOfOneFile()
    {
        const QString track = prepare(words("900.wav 1300.wav"), -1, 0, 4000);
        QCOMPARE(MediaSamples::format(track), QStringLiteral("22050,1"));
        prepare(words("900.wav 400.mp3"), 0, 0, 4000);
        QCOMPARE(MediaSamples::format(m_cache->filePath(QStringLiteral("audio/audio.wav"))),
                 QStringLiteral("44100,2"));
        QVERIFY(QFile::exists(m_cache->filePath(QStringLiteral("audio/1.wav"))));
    }

    void takesStrangeNames()
    {
        QStringList names;
        for (const QString &name :
             {QStringLiteral("it's 100% 'good'.wav"), QStringLiteral("Grüße #2.wav"),
              QStringLiteral("音楽 %05d.wav"), QStringLiteral("two\nlines.wav"),
              QStringLiteral("back\\slash.wav")}) {
            if (QFile::copy(file(QStringLiteral("900.wav")), file(name)))
                names.append(name);
        }
        QVERIFY(names.size() >= 3);
        const QString track = prepare(names, 0, 0, 60000);
        QVERIFY2(!track.isEmpty(), qPrintable(m_error));
        const double seconds = MediaSamples::seconds(MediaSamples::listen(track));
        QVERIFY2(qAbs(seconds - 2 * names.size()) < 0.1, qPrintable(QString::number(seconds)));
    }

    void namesTheUnreadableFile()
    {
        const QString broken = file(QStringLiteral("broken.ogg"));
        QVERIFY(writeFile(broken, QByteArray("no sound").repeated(500)));
        QCOMPARE(prepare(words("900.wav broken.ogg"), 0, 0, 3000), QString());
        const QString expected = QStringLiteral("The music file '%1' cannot be read: ");
        QVERIFY2(m_error.startsWith(expected.arg(QDir::toNativeSeparators(broken))),
                 qPrintable(m_error));
    }

    void missingTranscoderIsReported()
    {
        qputenv("VELMORA_TRANSCODER", "/nowhere/transcoder");
        const QString track = prepare({QStringLiteral("400.mp3")}, 0, 0, 3000);
        qunsetenv("VELMORA_TRANSCODER");
        QCOMPARE(track, QString());
        QVERIFY2(m_error.contains(QLatin1String("transcoder")), qPrintable(m_error));
    }

    void cancelEndsThePreparation()
    {
        QCOMPARE(prepare(words("900.wav"), 0, 0, 3000, true), QString());
        QVERIFY(!QFile::exists(m_cache->filePath(QStringLiteral("video/audio_stream.wav"))));
    }

private:
    QString prepare(const QStringList &names, int offset, int fade, int length,
                    bool cancelled = false)
    {
        m_cache =
            std::make_unique<QTemporaryDir>(QDir::tempPath() + QStringLiteral("/50%1 XXXXXX"));
        EncodingContext context;
        context.cachePath = m_cache->path();
        context.encoder = MediaSamples::encoder();
        context.cancelled = cancelled;
        AudioItemList list;
        for (const QString &name : names)
            list.items.append({file(name), QString()});
        VideoUtil util(context);
        const QString track = util.prepareAudio(list, m_cache->filePath(QStringLiteral("audio")),
                                                offset, fade, length);
        m_error = util.errorText();
        return track;
    }

    QString file(const QString &name) const { return m_music.filePath(name); }

    QTemporaryDir m_music;
    std::unique_ptr<QTemporaryDir> m_cache;
    QString m_error;
};

QTEST_GUILESS_MAIN(SoundTrackTest)
#include "SoundTrackTest.moc"
