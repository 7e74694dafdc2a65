// SPDX-License-Identifier: GPL-3.0-or-later
#include "helpers/MediaSamples.h"

#include <QCoreApplication>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

using namespace velmora;

class TranscoderTest : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void convertsAFile();
    void reportsFailures_data();
    void reportsFailures();
    void printsHelp();

private:
    int run(const QStringList &arguments);
    QString file(const QString &name) const { return m_folder.filePath(name); }

    QTemporaryDir m_folder;
    QString m_output;
    QString m_errors;
};

void TranscoderTest::initTestCase()
{
    QVERIFY(MediaSamples::makeToneWithCover(file(QStringLiteral("ton ä.mp3")), {660, 2, 44100, 1}));
}

int TranscoderTest::run(const QStringList &arguments)
{
    QProcess process;
    process.start(QCoreApplication::applicationDirPath() + QStringLiteral("/transcoder"),
                  arguments);
    process.waitForFinished(60000);
    m_output = QString::fromUtf8(process.readAllStandardOutput());
    m_errors = QString::fromUtf8(process.readAllStandardError());
    return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
}

void TranscoderTest::convertsAFile()
{
    const QString target = file(QStringLiteral("out.wav"));
    QCOMPARE(run({file(QStringLiteral("ton ä.mp3")), target}), 0);
    QCOMPARE(m_errors, QString());
    QCOMPARE(MediaSamples::format(target), QStringLiteral("44100,2"));
    const MediaSamples::Sound sound = MediaSamples::listen(target);
    QVERIFY(qAbs(MediaSamples::seconds(sound) - 2) < 0.1);
    QCOMPARE(MediaSamples::tone(sound, 0.2, 1.8, {330, 660, 1320}), 660);
}

void TranscoderTest::reportsFailures_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("message");
    const QString music = QStringLiteral("ton ä.mp3");
    const QString target = QStringLiteral("new.wav");
    QTest::newRow("no arguments") << QStringList() << 2 << QStringLiteral("Usage:");
    QTest::newRow("one argument") << QStringList{music} << 2 << QStringLiteral("Usage:");
    QTest::newRow("three arguments")
        << QStringList{music, target, target} << 2 << QStringLiteral("Usage:");
    QTest::newRow("onto itself") << QStringList{music, music} << 2 << QStringLiteral("same file");
    QTest::newRow("missing") << QStringList{QStringLiteral("no.mp3"), target} << 1
                             << QStringLiteral("no.mp3' cannot be read");
    QTest::newRow("nowhere to write") << QStringList{music, QStringLiteral("no/new.wav")} << 1
                                      << QStringLiteral("new.wav' cannot be written");
}

void TranscoderTest::reportsFailures()
{
    QFETCH(QStringList, names);
    QFETCH(QString, message);
    QStringList arguments;
    for (const QString &name : qAsConst(names))
        arguments.append(file(name));
    QTEST(run(arguments), "exitCode");
    QVERIFY2(m_errors.contains(message), qPrintable(m_errors));
    QVERIFY(!QFile::exists(file(QStringLiteral("new.wav"))));
}

void TranscoderTest::printsHelp()
{
    QCOMPARE(run({QStringLiteral("--help")}), 0);
    QVERIFY(m_output.contains(QLatin1String("transcoder FROM TO")));
}

QTEST_GUILESS_MAIN(TranscoderTest)
#include "TranscoderTest.moc"
