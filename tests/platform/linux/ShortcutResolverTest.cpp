// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ShortcutResolver.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

using namespace velmora;

class ShortcutResolverTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void resolves_data();
    void resolves();

private:
    QString path(const QString &name) const { return m_folder.filePath(name); }
    void write(const QString &name, const QByteArray &content) const
    {
        QFile file(path(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(content), content.size());
    }
    void writeLink(const QString &name, const QByteArray &url) const
    {
        write(name, "# comment\n[Desktop Entry]\nVersion=1.0\nType = Link\nName=x\nURL=" + url +
                        "\n[Other]\nURL=file:///wrong\n");
    }

    QTemporaryDir m_folder;
};

void ShortcutResolverTest::initTestCase()
{
    const QString photo = QStringLiteral("f\u00f6t\u00f6 100%.jpg");
    write(photo, "x");
    const QByteArray url = QUrl::fromLocalFile(path(photo)).toEncoded();
    writeLink(QStringLiteral("url.desktop"), url);
    writeLink(QStringLiteral("plain.desktop"), path(photo).toUtf8());
    writeLink(QStringLiteral("relative.desktop"), photo.toUtf8());
    writeLink(QStringLiteral("web.desktop"), "https://example.org/a.jpg");
    writeLink(QStringLiteral("missing.desktop"), "file:///no/such/file");
    writeLink(QStringLiteral("empty.desktop"), "");
    writeLink(QStringLiteral("circle.desktop"),
              QUrl::fromLocalFile(path(QStringLiteral("circle.desktop"))).toEncoded());
    write(QStringLiteral("program.desktop"), "[Desktop Entry]\nType=Application\nURL=" + url);
    write(QStringLiteral("binary.desktop"), QByteArray(300000, '\xff'));
    QVERIFY(QFile::link(path(photo), path(QStringLiteral("link"))));
    QVERIFY(QFile::link(path(QStringLiteral("link")), path(QStringLiteral("link2"))));
    QVERIFY(QFile::link(path(QStringLiteral("url.desktop")), path(QStringLiteral("mixed"))));
    QVERIFY(QFile::link(path(QStringLiteral("nothing")), path(QStringLiteral("broken"))));
    QVERIFY(QFile::link(path(QStringLiteral("b")), path(QStringLiteral("a"))));
    QVERIFY(QFile::link(path(QStringLiteral("a")), path(QStringLiteral("b"))));
}

void ShortcutResolverTest::resolves_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("target"); // A name in the folder; null for nothing.
    const QString photo = QStringLiteral("f\u00f6t\u00f6 100%.jpg");
    QTest::newRow("plain file") << photo << photo;
    QTest::newRow("missing file") << QStringLiteral("nothing") << QStringLiteral("nothing");
    QTest::newRow("symbolic link") << QStringLiteral("link") << photo;
    QTest::newRow("two links") << QStringLiteral("link2") << photo;
    QTest::newRow("desktop link") << QStringLiteral("url.desktop") << photo;
    QTest::newRow("desktop link, plain path") << QStringLiteral("plain.desktop") << photo;
    QTest::newRow("desktop link, relative") << QStringLiteral("relative.desktop") << photo;
    QTest::newRow("link to desktop link") << QStringLiteral("mixed") << photo;
    QTest::newRow("program") << QStringLiteral("program.desktop")
                             << QStringLiteral("program.desktop");
    QTest::newRow("binary") << QStringLiteral("binary.desktop") << QStringLiteral("binary.desktop");
    QTest::newRow("web") << QStringLiteral("web.desktop") << QString();
    QTest::newRow("missing target") << QStringLiteral("missing.desktop") << QString();
    QTest::newRow("empty address") << QStringLiteral("empty.desktop") << QString();
    QTest::newRow("desktop circle") << QStringLiteral("circle.desktop") << QString();
    QTest::newRow("broken link") << QStringLiteral("broken") << QString();
    QTest::newRow("link circle") << QStringLiteral("a") << QString();
}

void ShortcutResolverTest::resolves()
{
    QFETCH(QString, name);
    QFETCH(QString, target);
    const QString expected =
        target.isNull() ? QString()
                        : QDir(m_folder.path()).canonicalPath() + QLatin1Char('/') + target;
    QCOMPARE(resolveShortcut(QDir(m_folder.path()).canonicalPath() + QLatin1Char('/') + name),
             expected);
}

QTEST_GUILESS_MAIN(ShortcutResolverTest)
#include "ShortcutResolverTest.moc"
