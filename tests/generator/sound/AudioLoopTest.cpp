// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/encoding/VideoUtil.h"
#include "helpers/MediaSamples.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace velmora;

class AudioLoopTest : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void repeatsToTheVideosEnd_data();
    void repeatsToTheVideosEnd();
    void fadesOutWhereTheVideoEnds();
    void veryShortMusic();
    void quotesInTheSourcesName();
    void missingSourceFails();

private:
    QString file(const QString &name) const { return m_cache->filePath(name); }
    int listLines() const;

    std::unique_ptr<QTemporaryDir> m_cache;
    std::unique_ptr<EncodingContext> m_context;
};

void AudioLoopTest::init()
{
    m_cache = std::make_unique<QTemporaryDir>();
    m_context = std::make_unique<EncodingContext>();
    m_context->cachePath = m_cache->path();
    m_context->encoder = MediaSamples::encoder();
}

int AudioLoopTest::listLines() const
{
    QFile list(file(QStringLiteral("merge-loop-audio.txt")));
    return list.open(QIODevice::ReadOnly) ? list.readAll().count('\n') : 0;
}

void AudioLoopTest::repeatsToTheVideosEnd_data()
{
    QTest::addColumn<double>("seconds");
    QTest::addColumn<int>("length");
    QTest::addColumn<int>("count"); // 0: used as it is
    QTest::newRow("two and a half times") << 4.0 << 10000 << 3;
    QTest::newRow("exactly twice") << 4.0 << 8000 << 2;
    QTest::newRow("a little longer than twice") << 4.0 << 8001 << 3;
    QTest::newRow("as long as the video") << 4.0 << 4000 << 0;
    QTest::newRow("longer than the video") << 4.0 << 3000 << 0;
    QTest::newRow("no video") << 4.0 << 0 << 0;
}

void AudioLoopTest::repeatsToTheVideosEnd()
{
    QFETCH(double, seconds);
    QFETCH(int, length);
    QFETCH(int, count);
    const QString source = file(QStringLiteral("source.wav"));
    QVERIFY(MediaSamples::makeTone(source, {500, seconds, 44100, 2}));

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

void AudioLoopTest::fadesOutWhereTheVideoEnds()
{
    const QString source = file(QStringLiteral("source.wav"));
    QVERIFY(MediaSamples::makeTone(source, {500, 3, 44100, 2}));
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

void AudioLoopTest::veryShortMusic()
{
    const QString source = file(QStringLiteral("source.wav"));
    QVERIFY(MediaSamples::makeTone(source, {500, 0.002, 44100, 1}));
    QString output = file(QStringLiteral("looped.wav"));
    VideoUtil util(*m_context);
    QVERIFY2(util.prepareAudioLoop(source, 3000, output), qPrintable(util.errorText()));
    QVERIFY(listLines() < 1500);
    QVERIFY(MediaSamples::seconds(MediaSamples::listen(output)) >= 3);
}

void AudioLoopTest::quotesInTheSourcesName()
{
    const QString source = file(QStringLiteral("it's 'mine'.wav"));
    QVERIFY(MediaSamples::makeTone(source, {500, 1, 44100, 2}));
    VideoUtil util(*m_context);
    const QString output = file(QStringLiteral("looped.wav"));
    QVERIFY2(util.loopAudio(source, 3, output), qPrintable(util.errorText()));
    QVERIFY(qAbs(MediaSamples::seconds(MediaSamples::listen(output)) - 3) < 0.001);
}

void AudioLoopTest::missingSourceFails()
{
    VideoUtil util(*m_context);
    const QString output = file(QStringLiteral("looped.wav"));
    QVERIFY(!util.loopAudio(file(QStringLiteral("missing.wav")), 2, output));
    QVERIFY(!util.errorText().isEmpty());
    QVERIFY(!QFile::exists(output));
}

QTEST_GUILESS_MAIN(AudioLoopTest)
#include "AudioLoopTest.moc"
