// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/encoding/VideoUtil.h"
#include "helpers/Files.h"
#include "helpers/MediaSamples.h"

#include <QtTest>

using namespace velmora;

class AudioLoopTest : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        m_cache = std::make_unique<QTemporaryDir>();
        m_context = std::make_unique<EncodingContext>();
        m_context->cachePath = m_cache->path();
        m_context->encoder = MediaSamples::encoder();
    }

    void repeatsToTheVideosEnd_data()
    {
        QTest::addColumn<int>("length");
        QTest::addColumn<int>("count"); // 0: used as it is
        QTest::newRow("two and a half times") << 10000 << 3;
        QTest::newRow("exactly twice") << 8000 << 2;
        QTest::newRow("a little longer than twice") << 8001 << 3;
        QTest::newRow("as long as the video") << 4000 << 0;
        QTest::newRow("longer than the video") << 3000 << 0;
        QTest::newRow("no video") << 0 << 0;
    }
    void repeatsToTheVideosEnd()
    {
        QFETCH(int, length);
        QFETCH(int, count);
        const double seconds = 4;
        const QString source = makeSource(seconds);

        const QString wanted = file(QStringLiteral("looped.wav"));
        QString output = wanted;
        VideoUtil util(*m_context);
        QVERIFY2(util.prepareAudioLoop(source, length, output), qPrintable(util.errorText()));
        QCOMPARE(output, count > 0 ? wanted : source);
        QCOMPARE(listLines(), count);
        const MediaSamples::Sound sound = MediaSamples::listen(output);
        QVERIFY(qAbs(MediaSamples::seconds(sound) - qMax(count, 1) * seconds) < 0.001);
        // No gap where the repetitions meet.
        for (int i = 1; i < count; ++i)
            QVERIFY(MediaSamples::level(sound, i * seconds - 0.02, i * seconds + 0.02) > 0.3);
    }

    void fadesOutWhereTheVideoEnds()
    {
        const QString source = makeSource(3);
        QString output = file(QStringLiteral("looped.wav"));
        VideoUtil util(*m_context);
        QVERIFY2(util.prepareAudioLoop(source, 8000, output, 2), qPrintable(util.errorText()));
        const MediaSamples::Sound sound = MediaSamples::listen(output);
        QVERIFY(qAbs(MediaSamples::seconds(sound) - 8) < 0.03);
        const double full = MediaSamples::level(sound, 1, 5.9);
        QVERIFY(full > 0.3);
        QVERIFY(qAbs(MediaSamples::level(sound, 6.9, 7.1) / full - 0.5) < 0.1);
        QVERIFY(MediaSamples::level(sound, 7.95, 8) / full < 0.1);
    }

    void veryShortMusic()
    {
        const QString source = makeSource(0.002, 1);
        QString output = file(QStringLiteral("looped.wav"));
        VideoUtil util(*m_context);
        QVERIFY2(util.prepareAudioLoop(source, 3000, output), qPrintable(util.errorText()));
        QVERIFY(listLines() < 1500);
        QVERIFY(MediaSamples::seconds(MediaSamples::listen(output)) >= 3);
    }

    void missingSourceFails()
    {
        VideoUtil util(*m_context);
        const QString output = file(QStringLiteral("looped.wav"));
        QVERIFY(!util.loopAudio(file(QStringLiteral("missing.wav")), 2, output));
        QVERIFY(!util.errorText().isEmpty());
        QVERIFY(!QFile::exists(output));
    }

private:
    QString file(const QString &name) const { return m_cache->filePath(name); }
    /// A tone that is so long, with quotes in its file's name.
    QString makeSource(double seconds, int channels = 2) const
    {
        const QString source = file(QStringLiteral("it's 'mine'.wav"));
        return MediaSamples::makeTone(source, {500, seconds, 44100, channels}) ? source : QString();
    }
    int listLines() const
    {
        return readFile(file(QStringLiteral("merge-loop-audio.txt"))).count('\n');
    }

    std::unique_ptr<QTemporaryDir> m_cache;
    std::unique_ptr<EncodingContext> m_context;
};

QTEST_GUILESS_MAIN(AudioLoopTest)
#include "AudioLoopTest.moc"
