// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/sound/SoundPlan.h"
#include "generator/sound/SoundFormat.h"

#include <QtTest>

#include <limits>

using namespace velmora;

Q_DECLARE_METATYPE(velmora::SoundFormat)

class SoundPlanTest : public QObject
{
    Q_OBJECT
private slots:
    void plan_data()
    {
        QTest::addColumn<int>("offset");
        QTest::addColumn<int>("fade");
        QTest::addColumn<int>("available");
        QTest::addColumn<QVector<qint64>>("expected"); // skip, silence, room, music, fade
        using Times = QVector<qint64>;
        QTest::newRow("plain") << 0 << 0 << 90000 << Times{0, 0, 60000, 60000, 0};
        QTest::newRow("fade") << 0 << 5 << 90000 << Times{0, 0, 60000, 60000, 5000};
        QTest::newRow("short music fades where it ends")
            << 0 << 5 << 40000 << Times{0, 0, 60000, 40000, 5000};
        QTest::newRow("long fade") << 0 << 40 << 90000 << Times{0, 0, 60000, 60000, 30000};
        QTest::newRow("offset") << 20 << 0 << 90000 << Times{20, 0, 60000, 60000, 0};
        QTest::newRow("offset near the end")
            << 80 << 10 << 90000 << Times{80, 0, 60000, 10000, 5000};
        QTest::newRow("offset beyond the music") << 100 << 5 << 90000 << Times{100, 0, 60000, 0, 0};
        QTest::newRow("silence first") << -20 << 5 << 90000 << Times{0, 20000, 40000, 40000, 5000};
        QTest::newRow("silence longer than the video")
            << -70 << 5 << 90000 << Times{0, 60000, 0, 0, 0};
        QTest::newRow("huge silence")
            << std::numeric_limits<int>::min() << 0 << 90000 << Times{0, 60000, 0, 0, 0};
        QTest::newRow("huge offset and fade")
            << std::numeric_limits<int>::max() << std::numeric_limits<int>::max() << 90000
            << Times{std::numeric_limits<int>::max(), 0, 60000, 0, 0};
        QTest::newRow("negative fade") << 0 << -3 << 90000 << Times{0, 0, 60000, 60000, 0};
    }
    void plan()
    {
        QFETCH(int, offset);
        QFETCH(int, fade);
        QFETCH(int, available);
        const SoundPlan plan = SoundPlan::make(offset, fade, 60000, available);
        const QVector<qint64> times{plan.skip, plan.silence, plan.room, plan.music, plan.fade};
        QTEST(times, "expected");
    }

    void joinsOnlyWhatMatches_data()
    {
        QTest::addColumn<QVector<SoundFormat>>("formats");
        QTest::addColumn<bool>("joinable");
        const SoundFormat cd{QStringLiteral("wav"), QStringLiteral("pcm_s16le"), 44100, 2};
        const auto changed = [cd](auto change) {
            SoundFormat format = cd;
            change(format);
            return format;
        };
        const SoundFormat mono = changed([](SoundFormat &f) { f.channels = 1; });
        const SoundFormat slow = changed([](SoundFormat &f) { f.sampleRate = 22050; });
        const SoundFormat deep =
            changed([](SoundFormat &f) { f.codec = QStringLiteral("pcm_s24le"); });
        const SoundFormat ogg{QStringLiteral("ogg"), QStringLiteral("vorbis"), 44100, 2};
        const SoundFormat packed = changed([](SoundFormat &f) { f.codec = QStringLiteral("mp3"); });
        const SoundFormat surround = changed([](SoundFormat &f) { f.channels = 6; });
        using Formats = QVector<SoundFormat>;
        QTest::newRow("one") << Formats{cd} << true;
        QTest::newRow("alike") << Formats{cd, cd, cd} << true;
        QTest::newRow("alike in another form") << Formats{mono, mono} << true;
        QTest::newRow("channels differ") << Formats{cd, mono} << false;
        QTest::newRow("rates differ") << Formats{cd, cd, slow} << false;
        QTest::newRow("depths differ") << Formats{deep, cd} << false;
        QTest::newRow("no WAV") << Formats{ogg} << false;
        QTest::newRow("two OGG files of one form") << Formats{ogg, ogg} << false;
        QTest::newRow("compressed sound in WAV") << Formats{packed, packed} << false;
        QTest::newRow("more channels than the encoders take") << Formats{surround} << false;
    }
    void joinsOnlyWhatMatches()
    {
        QFETCH(QVector<SoundFormat>, formats);
        QTEST(canJoinAsTheyAre(formats), "joinable");
    }
};

QTEST_GUILESS_MAIN(SoundPlanTest)
#include "SoundPlanTest.moc"
