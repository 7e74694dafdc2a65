// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/pipeline/InputCheck.h"
#include "helpers/Files.h"
#include "helpers/RenderFixture.h"

#include <QtTest>

using namespace velmora;

class InputCheckTest : public QObject
{
    Q_OBJECT

    RenderFixture m_fixture;
    const std::atomic_bool m_running{false};

private slots:
    void acceptsWhatCanBeRead()
    {
        RenderRequest request = m_fixture.request({m_fixture.photo(QStringLiteral("a.jpg"), 1),
                                                   m_fixture.photo(QStringLiteral("b.png"), 2),
                                                   m_fixture.photo(QStringLiteral("c.bmp"), 3)},
                                                  m_fixture.output(QStringLiteral("a.mp4")));
        request.project->setAudio({{{m_fixture.sound(QStringLiteral("a.wav"), 1), {}}}, 0});
        const RenderError error = InputCheck::run(*request.project, m_running);
        QVERIFY2(!error.isSet(), qPrintable(error.text));
    }

    void namesAllBadFilesInTheirOrderAndOnce()
    {
        const QString first = m_fixture.path(QStringLiteral("gone.jpg"));
        const QByteArray whole =
            readFile(m_fixture.photo(QStringLiteral("whole.jpg"), 1, {640, 480}));
        const QString second =
            m_fixture.file(QStringLiteral("half.jpg"), whole.left(whole.size() / 2));
        const QString sound = m_fixture.file(QStringLiteral("text.mp3"), "This is no music.\n");
        RenderRequest request =
            m_fixture.request({first, m_fixture.photo(QStringLiteral("a.jpg"), 1), second, first},
                              m_fixture.output(QStringLiteral("a.mp4")));
        request.project->setAudio({{{sound, {}}}, 0});
        const RenderError error = InputCheck::run(*request.project, m_running);
        QCOMPARE(error.code, QString(RenderErrorCode::kInput));
        const QStringList lines = error.text.split(QLatin1Char('\n'));
        QCOMPARE(lines.size(), 3);
        QVERIFY(lines.at(0).contains(first));
        QVERIFY(lines.at(1).contains(second));
        QVERIFY(lines.at(2).contains(sound));
    }

    void videoDoesNotReplaceWhatItIsMadeOf()
    {
        const QString sound = m_fixture.sound(QStringLiteral("own.wav"), 1);
        const QString video = m_fixture.output(QStringLiteral("own.mov"));
        QVERIFY(QFile::copy(sound, video));
        RenderRequest request =
            m_fixture.request({m_fixture.photo(QStringLiteral("a.jpg"), 1)}, video);
        QVERIFY(!InputCheck::refuseReplacing(*request.project, video).isSet());
        request.project->setAudio({{{sound, {}}, {video, {}}}, 0});
        const RenderError error = InputCheck::refuseReplacing(*request.project, video);
        QCOMPARE(error.code, QString(RenderErrorCode::kOutput));
        QVERIFY2(error.text.contains(QDir::toNativeSeparators(video)), qPrintable(error.text));
        QVERIFY(
            !InputCheck::refuseReplacing(*request.project, video + QStringLiteral(".mp4")).isSet());
    }

    void countsTheRestOfVeryManyBadFiles()
    {
        QStringList photos;
        for (int i = 0; i < 2000; ++i)
            photos.append(m_fixture.path(QStringLiteral("gone-%1.jpg").arg(i)));
        const RenderRequest request =
            m_fixture.request(photos, m_fixture.output(QStringLiteral("a.mp4")));
        const QString text = InputCheck::run(*request.project, m_running).text;
        QVERIFY(text.size() < 20'000);
        const QStringList lines = text.split(QLatin1Char('\n'));
        QVERIFY2(lines.constLast().startsWith(QString::number(2001 - lines.size())),
                 qPrintable(lines.constLast()));
    }

    void stopsWhenCancelled()
    {
        const std::atomic_bool cancelled{true};
        const RenderRequest request =
            m_fixture.request({m_fixture.path(QStringLiteral("gone.jpg"))},
                              m_fixture.output(QStringLiteral("a.mp4")));
        QVERIFY(!InputCheck::run(*request.project, cancelled).isSet());
    }
};

QTEST_MAIN(InputCheckTest)
#include "InputCheckTest.moc"
