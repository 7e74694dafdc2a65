// SPDX-License-Identifier: GPL-3.0-or-later
#include "programs/velmoratool/MakeOptions.h"
#include "helpers/Words.h"

#include "project/slides/TransitionType.h"

#include <QtTest>

using namespace velmora;

class MakeOptionsTest : public QObject
{
    Q_OBJECT
private slots:
    void readsEverything()
    {
        QStringList arguments =
            words("--photos b.jpg a.jpg dir --music 1.mp3 2.ogg --output out.webm "
                  "--size 1280x720 --time 5 --transition-length 3 --fade 4 "
                  "--offset -7 --captions-from-names --loop --original-size "
                  "--sort date --parallel --profile everywhere --json "
                  "--dump-project p.json");
        arguments << QStringLiteral("--transition") << QStringLiteral("wipe left to right")
                  << QStringLiteral("--title") << QStringLiteral("Côte d'Azur 100 %1");
        QString error;
        const auto options = parseMakeOptions(arguments, &error);
        QVERIFY2(options, qPrintable(error));
        QCOMPARE(options->photos, words("b.jpg a.jpg dir"));
        QCOMPARE(options->music, words("1.mp3 2.ogg"));
        QCOMPARE(options->output, QStringLiteral("out.webm"));
        QCOMPARE(options->size, QSize(1280, 720));
        QCOMPARE(*options->time, 5);
        QCOMPARE(*options->transition, static_cast<int>(TransitionType::WipeLeftToRight));
        QCOMPARE(*options->transitionSeconds, 3);
        QCOMPARE(options->title, QStringLiteral("Côte d'Azur 100 %1"));
        QVERIFY(options->captionsFromNames);
        QCOMPARE(*options->fade, 4);
        QCOMPARE(*options->offset, -7);
        QVERIFY(options->loop);
        QVERIFY(options->originalSize);
        QVERIFY(!options->stretch);
        QVERIFY(options->order == MakeOptions::Order::Date);
        QVERIFY(options->parallel);
        QVERIFY(*options->profile == OutputProfile::PlaysEverywhere);
        QVERIFY(options->json);
        QCOMPARE(options->dumpFile, QStringLiteral("p.json"));
    }

    void leavesTheRestOpen()
    {
        QString error;
        const auto options = parseMakeOptions(words("--photos a.jpg --output a.mp4"), &error);
        QVERIFY(options);
        QVERIFY(!options->size.isValid() && options->title.isEmpty());
        QVERIFY(!options->time && !options->transition && !options->transitionSeconds);
        QVERIFY(!options->fade && !options->offset && !options->profile);
        QVERIFY(!options->parallel && !options->json && !options->stretch && !options->loop);
    }

    void readsForms_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QStringList>("photos");
        QTest::newRow("equals sign") << words("--photos=a.jpg --output=o.mp4") << words("a.jpg");
        QTest::newRow("equals sign in the value")
            << words("--photos=a=b.jpg --output o.mp4") << words("a=b.jpg");
        QTest::newRow("list in two places")
            << words("--photos a.jpg --output o.mp4 --photos b.jpg") << words("a.jpg b.jpg");
        QTest::newRow("leading hyphen")
            << words("--photos -1.jpg --output o.mp4") << words("-1.jpg");
        QTest::newRow("upper-case suffix")
            << words("--photos a.jpg --output O.MP4") << words("a.jpg");
        QTest::newRow("document without a video")
            << words("--photos a.jpg --dump-project p.json") << words("a.jpg");
        QTest::newRow("saved project with what fits it")
            << words("--project p.json --output o.mp4 --size 64x64 --parallel --profile original "
                     "--json --dump-project q.json")
            << QStringList();
    }
    void readsForms()
    {
        QFETCH(QStringList, arguments);
        QString error;
        const auto options = parseMakeOptions(arguments, &error);
        QVERIFY2(options, qPrintable(error));
        QTEST(options->photos, "photos");
    }

    void refuses_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("message");
        const auto row = [](const QByteArray &arguments, const char *message) {
            QTest::newRow(arguments) << words(arguments) << message;
        };
        const auto more = [row](const char *arguments, const char *message) {
            row(QByteArray("--photos a.jpg --output o.mp4 ") + arguments, message);
        };
        row("", "--photos or --project");
        row("--photos", "--photos needs a value");
        row("--photos --output o.mp4", "--photos needs a value");
        row("--photos a.jpg", "--output is needed");
        row("--output o.mp4", "--photos or --project");
        row("a.jpg --output o.mp4", "\"a.jpg\" belongs to no option");
        more("b.jpg", "\"b.jpg\" belongs to no option");
        more("--fast", "no option --fast");
        more("--loop=yes", "--loop takes no value");
        row("--photos a.jpg --output o.txt", "\"o.txt\" must end in one of: .mp4");
        row("--photos a.jpg --output mp4", "\"mp4\" must end");
        row("--photos a.jpg --output=", "must end");
        row("--photos= --output o.mp4", "file name is empty");
        more("--size big", "\"big\" is not a size");
        more("--size 0x100", "\"0x100\" is not a size");
        more("--size 99999x100", "not a size");
        more("--time 0", "\"0\" is not a whole number from 1 to 86400");
        more("--time 2.5", "\"2.5\" is not a whole number");
        more("--time %2", "\"%2\" is not a whole number from 1");
        more("--time 99999999999", "not a whole number");
        more("--fade -1", "--fade: \"-1\"");
        more("--transition-length 0", "--transition-length:");
        more("--transition Wobble", "There are: None, Random, Cross fade");
        more("--sort size", "\"size\" is none of");
        more("--profile phone", "\"phone\" is neither");
        more("--stretch --original-size", "exclude each other");
        more("--title=", "--title: The text is empty");
        row("--project p.json --photos a.jpg", "--photos cannot be combined");
        row("--project p.json --time 4", "--time cannot be combined");
    }
    void refuses()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, message);
        QString error;
        QVERIFY(!parseMakeOptions(arguments, &error));
        QVERIFY2(error.contains(message), qPrintable(error));
    }
};

QTEST_GUILESS_MAIN(MakeOptionsTest)
#include "MakeOptionsTest.moc"
