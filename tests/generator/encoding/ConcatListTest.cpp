// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/encoding/ConcatList.h"
#include "helpers/Files.h"
#include "helpers/Words.h"

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
        QVERIFY(!ConcatList::write(list, {QStringLiteral("/a.mp4"), QStringLiteral("/b\n.mp4")},
                                   &error));
        QVERIFY2(error.contains(QStringLiteral("/b .mp4")), qPrintable(error));
        QVERIFY(!QFileInfo::exists(list));
        QVERIFY(ConcatList::write(list, words("/ü.mp4 /b.mp4"), &error));
        QCOMPARE(readFile(list), QByteArray("file '/ü.mp4'\nfile '/b.mp4'\n"));

        const QString nowhere = folder.filePath(QStringLiteral("missing/l.txt"));
        QTest::ignoreMessage(QtCriticalMsg,
                             QRegularExpression(QStringLiteral("^Open merge file error:")));
        QVERIFY(!ConcatList::write(nowhere, words("/a.mp4"), &error));
        QVERIFY2(error.contains(QDir::toNativeSeparators(nowhere)), qPrintable(error));
    }
};

QTEST_APPLESS_MAIN(ConcatListTest)
#include "ConcatListTest.moc"
