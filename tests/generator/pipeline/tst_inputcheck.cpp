// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/pipeline/InputCheck.h"
#include "helpers/RenderFixture.h"

#include "project/slides/ProjectItemFirst.h"

#include <QFile>
#include <QtTest>

using namespace velmora;

class TestInputCheck : public QObject
{
    Q_OBJECT

    RenderFixture m_fixture;
    const std::atomic_bool m_running{false};

    QString broken(const QString &kind, const QString &name) const
    {
        if (kind == QLatin1String("text"))
            return m_fixture.file(name, "This is no picture.\n");
        if (kind == QLatin1String("empty"))
            return m_fixture.file(name, {});
        if (kind == QLatin1String("folder"))
            return m_fixture.outputFolder();
        if (kind == QLatin1String("truncated")) {
            QFile whole(m_fixture.photo(QStringLiteral("whole-") + name, 1, {640, 480}));
            if (!whole.open(QIODevice::ReadOnly))
                qFatal("The picture could not be read.");
            return m_fixture.file(name, whole.read(whole.size() / 2));
        }
        return m_fixture.path(name); // missing
    }

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

    void namesABadPhoto_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("kind");
        QTest::newRow("missing") << "gone.jpg"
                                 << "missing";
        QTest::newRow("text") << "text.jpg"
                              << "text";
        QTest::newRow("empty PNG") << "empty.png"
                                   << "empty";
        QTest::newRow("truncated JPEG") << "half.jpg"
                                        << "truncated";
        QTest::newRow("truncated PNG") << "half.png"
                                       << "truncated";
        QTest::newRow("folder") << "dir.jpg"
                                << "folder";
    }

    void namesABadPhoto()
    {
        QFETCH(QString, name);
        QFETCH(QString, kind);
        const QString bad = broken(kind, name);
        const RenderRequest request =
            m_fixture.request({m_fixture.photo(QStringLiteral("a.jpg"), 1), bad},
                              m_fixture.output(QStringLiteral("a.mp4")));
        const RenderError error = InputCheck::run(*request.project, m_running);
        QCOMPARE(error.code, QString(RenderErrorCode::kInput));
        QVERIFY2(error.text.contains(bad), qPrintable(error.text));
        QVERIFY(!error.text.contains(QLatin1String("a.jpg")));
    }

    void namesABadSound_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("kind");
        QTest::newRow("missing") << "gone.mp3"
                                 << "missing";
        QTest::newRow("text") << "text.mp3"
                              << "text";
        QTest::newRow("empty") << "empty.wav"
                               << "empty";
    }

    void namesABadSound()
    {
        QFETCH(QString, name);
        QFETCH(QString, kind);
        const QString bad = broken(kind, name);
        RenderRequest request = m_fixture.request({m_fixture.photo(QStringLiteral("a.jpg"), 1)},
                                                  m_fixture.output(QStringLiteral("a.mp4")));
        request.project->setAudio({{{bad, {}}}, 0});
        const RenderError error = InputCheck::run(*request.project, m_running);
        QCOMPARE(error.code, QString(RenderErrorCode::kInput));
        QVERIFY2(error.text.contains(bad), qPrintable(error.text));
    }

    void namesAllBadFilesInTheirOrderAndOnce()
    {
        const QString first = broken(QStringLiteral("missing"), QStringLiteral("1.jpg"));
        const QString second = broken(QStringLiteral("text"), QStringLiteral("2.jpg"));
        const QString sound = broken(QStringLiteral("missing"), QStringLiteral("3.mp3"));
        RenderRequest request =
            m_fixture.request({first, m_fixture.photo(QStringLiteral("a.jpg"), 1), second, first},
                              m_fixture.output(QStringLiteral("a.mp4")));
        request.project->setAudio({{{sound, {}}}, 0});
        const QStringList lines =
            InputCheck::run(*request.project, m_running).text.split(QLatin1Char('\n'));
        QCOMPARE(lines.size(), 3);
        QVERIFY(lines.at(0).contains(first));
        QVERIFY(lines.at(1).contains(second));
        QVERIFY(lines.at(2).contains(sound));
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

QTEST_MAIN(TestInputCheck)
#include "tst_inputcheck.moc"
