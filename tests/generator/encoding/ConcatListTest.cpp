// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/encoding/ConcatList.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace velmora;

class ConcatListTest : public QObject
{
    Q_OBJECT
private slots:
    void line_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *path, const char *line) {
            QTest::newRow(path) << QString::fromUtf8(path) << QString::fromUtf8(line);
        };
        row("/a/b c.mp4", "file '/a/b c.mp4'");
        row("/it's/'.mp4", "file '/it'\\''s/'\\''.mp4'");
        row("/100%1 \"x\"#.mp4", "file '/100%1 \"x\"#.mp4'");
        row("/ü/漢字.mp4", "file '/ü/漢字.mp4'");
        row("/two\nlines", "");
        row("/carriage\rreturn", "");
    }
    void line()
    {
        QFETCH(QString, path);
        QTEST(QString::fromUtf8(ConcatList::line(path)), "expected");
    }

    void writesOneLinePerFile()
    {
        const QTemporaryDir folder;
        const QString list = folder.filePath(QStringLiteral("merge-files.txt"));
        QString error;
        QVERIFY(
            ConcatList::write(list, {QStringLiteral("/ü.mp4"), QStringLiteral("/b.mp4")}, &error));
        QFile file(list);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(QString::fromUtf8(file.readAll()),
                 QStringLiteral("file '/ü.mp4'\nfile '/b.mp4'\n"));
    }

    void refusesLineBreaks()
    {
        const QTemporaryDir folder;
        const QString list = folder.filePath(QStringLiteral("l.txt"));
        QString error;
        QVERIFY(!ConcatList::write(list, {QStringLiteral("/a.mp4"), QStringLiteral("/b\n.mp4")},
                                   &error));
        QVERIFY2(error.contains(QStringLiteral("/b .mp4")), qPrintable(error));
        QVERIFY(!QFileInfo::exists(list));
    }

    void reportsAListThatCannotBeOpened()
    {
        const QTemporaryDir folder;
        QString error;
        const QString list = folder.filePath(QStringLiteral("missing/l.txt"));
        QTest::ignoreMessage(QtCriticalMsg,
                             QRegularExpression(QStringLiteral("^Open merge file error:")));
        QVERIFY(!ConcatList::write(list, {QStringLiteral("/a.mp4")}, &error));
        QVERIFY2(error.contains(QDir::toNativeSeparators(list)), qPrintable(error));
    }
};

QTEST_APPLESS_MAIN(ConcatListTest)
#include "ConcatListTest.moc"
