// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ShortcutResolver.h"
#include "helpers/Files.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

using namespace velmora;

class ShortcutResolverTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        m_root = QDir(m_folder.path()).canonicalPath() + QLatin1Char('/');
        QVERIFY(writeFile(m_root + kPhoto, "x"));
        writeLink("url.desktop", url(kPhoto));
        writeLink("plain.desktop", (m_root + kPhoto).toUtf8());
        writeLink("relative.desktop", kPhoto.toUtf8());
        writeLink("web.desktop", "https://example.org/a.jpg");
        writeLink("missing.desktop", "file:///no/such/file");
        writeLink("empty.desktop", "");
        writeLink("circle.desktop", url(QStringLiteral("circle.desktop")));
        QVERIFY(writeFile(m_root + QStringLiteral("program.desktop"),
                          "[Desktop Entry]\nType=Application\nURL=" + url(kPhoto)));
        QVERIFY(writeFile(m_root + QStringLiteral("binary.desktop"), QByteArray(300000, '\xff')));
        const std::pair<QString, const char *> links[] = {
            {kPhoto, "link"},
            {QStringLiteral("link"), "link2"},
            {QStringLiteral("url.desktop"), "mixed"},
            {QStringLiteral("nothing"), "broken"},
            {QStringLiteral("b"), "a"},
            {QStringLiteral("a"), "b"},
        };
        for (const auto &[target, name] : links)
            QVERIFY(QFile::link(m_root + target, m_root + QLatin1String(name)));
    }

    void resolves_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("target"); // A name in the folder; null for nothing.
        QTest::newRow("plain file") << kPhoto << kPhoto;
        for (const char *same : {"nothing", "program.desktop", "binary.desktop"})
            QTest::newRow(same) << same << QString::fromLatin1(same);
        for (const char *link :
             {"link", "link2", "url.desktop", "plain.desktop", "relative.desktop", "mixed"})
            QTest::newRow(link) << link << kPhoto;
        for (const char *useless :
             {"web.desktop", "missing.desktop", "empty.desktop", "circle.desktop", "broken", "a"})
            QTest::newRow(useless) << useless << QString();
    }

    void resolves()
    {
        QFETCH(QString, name);
        QFETCH(QString, target);
        QCOMPARE(resolveShortcut(m_root + name), target.isNull() ? QString() : m_root + target);
    }

private:
    void writeLink(const char *name, const QByteArray &target) const
    {
        QVERIFY(writeFile(m_root + QLatin1String(name),
                          "# comment\n[Desktop Entry]\nVersion=1.0\nType = Link\nName=x\nURL=" +
                              target + "\n[Other]\nURL=file:///wrong\n"));
    }
    QByteArray url(const QString &name) const
    {
        return QUrl::fromLocalFile(m_root + name).toEncoded();
    }

    const QString kPhoto = QStringLiteral("f\u00f6t\u00f6 100%.jpg");
    QTemporaryDir m_folder;
    QString m_root; ///< With a slash behind.
};

QTEST_GUILESS_MAIN(ShortcutResolverTest)
#include "ShortcutResolverTest.moc"
