// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/main/StartMessage.h"

#include <QtTest>

using namespace velmora;

class StartMessageTest : public QObject
{
    Q_OBJECT

private slots:
    void carriesFiles_data()
    {
        QTest::addColumn<QStringList>("files");
        QTest::newRow("none") << QStringList();
        QTest::newRow("one") << QStringList(QStringLiteral("/a/b.json"));
        QTest::newRow("odd names") << QStringList({QStringLiteral("/a/new\nline %20 #1?.png"),
                                                   QStringLiteral("/\u00fc/\u65e5\u672c.jpg")});
    }
    void carriesFiles()
    {
        QFETCH(QStringList, files);
        const QString message = StartMessage::compose(files);
        QVERIFY(message.startsWith(QStringLiteral("Wake up!")));
        QCOMPARE(StartMessage::files(message), files);
    }

    void refusesOtherTexts_data()
    {
        QTest::addColumn<QString>("message");
        QTest::newRow("empty") << QString();
        QTest::newRow("other first line") << "Hello\nfile:///etc/passwd";
        QTest::newRow("not local") << "Wake up!\nhttp://host/a.png\nfile:";
    }
    void refusesOtherTexts()
    {
        QFETCH(QString, message);
        QCOMPARE(StartMessage::files(message), QStringList());
    }

    void takesFilesFromArguments()
    {
        const QStringList arguments = {QStringLiteral("velmora"), QStringLiteral("--inst"),
                                       QStringLiteral("a b.json"), QString(),
                                       QStringLiteral("/x.png")};
        QCOMPARE(StartMessage::filesOfArguments(arguments),
                 QStringList({QDir::current().absoluteFilePath(QStringLiteral("a b.json")),
                              QDir::current().absoluteFilePath(QStringLiteral("/x.png"))}));
    }
};

QTEST_MAIN(StartMessageTest)
#include "StartMessageTest.moc"
