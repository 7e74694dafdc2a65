// SPDX-License-Identifier: GPL-3.0-or-later
#include "helpers/MediaSamples.h"

#include <QtTest>

using namespace velmora;

class TranscoderTest : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        QVERIFY(
            MediaSamples::makeToneWithCover(file(QStringLiteral("ton ä.mp3")), {660, 2, 44100, 1}));
    }

    void reportsFailures_data()
    {
        QTest::addColumn<QStringList>("names");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QString>("message");
        const QString music = QStringLiteral("ton ä.mp3");
        const QString target = QStringLiteral("new.wav");
        QTest::newRow("no arguments") << QStringList() << 2 << "Usage:";
        QTest::newRow("one argument") << QStringList{music} << 2 << "Usage:";
        QTest::newRow("three arguments") << QStringList{music, target, target} << 2 << "Usage:";
        QTest::newRow("onto itself") << QStringList{music, music} << 2 << "same file";
        QTest::newRow("missing") << QStringList{QStringLiteral("no.mp3"), target} << 1
                                 << "no.mp3' cannot be read";
        QTest::newRow("nowhere to write") << QStringList{music, QStringLiteral("no/new.wav")} << 1
                                          << "new.wav' cannot be written";
    }
    void reportsFailures()
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

    void printsHelp()
    {
        QCOMPARE(run({QStringLiteral("--help")}), 0);
        QVERIFY(m_output.contains(QLatin1String("transcoder FROM TO")));
    }

private:
    int run(const QStringList &arguments)
    {
        QProcess process;
        process.start(QCoreApplication::applicationDirPath() + QStringLiteral("/transcoder"),
                      arguments);
        process.waitForFinished(60000);
        m_output = QString::fromUtf8(process.readAllStandardOutput());
        m_errors = QString::fromUtf8(process.readAllStandardError());
        return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    }

    QString file(const QString &name) const { return m_folder.filePath(name); }

    QTemporaryDir m_folder;
    QString m_output;
    QString m_errors;
};

QTEST_GUILESS_MAIN(TranscoderTest)
#include "TranscoderTest.moc"
