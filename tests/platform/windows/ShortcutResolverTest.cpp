// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ShortcutResolver.h"
#include "platform/ComApartment.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <objbase.h>
#include <shlobj.h>

using namespace velmora;

class ShortcutResolverTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void resolves_data();
    void resolves();

private:
    QString path(const QString &name) const { return m_root + QLatin1Char('/') + name; }
    void write(const QString &name, const QByteArray &content) const;
    void makeShortcut(const QString &name, const QString &target) const;

    const ComApartment m_apartment;
    QTemporaryDir m_folder;
    QString m_root;
};

void ShortcutResolverTest::write(const QString &name, const QByteArray &content) const
{
    QFile file(path(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), content.size());
}

// As the Explorer makes them.
void ShortcutResolverTest::makeShortcut(const QString &name, const QString &target) const
{
    IShellLinkW *link = nullptr;
    QVERIFY(SUCCEEDED(CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER,
                                       IID_IShellLinkW, reinterpret_cast<void **>(&link))));
    const std::wstring nativeTarget = QDir::toNativeSeparators(path(target)).toStdWString();
    const std::wstring nativeName = QDir::toNativeSeparators(path(name)).toStdWString();
    IPersistFile *file = nullptr;
    const bool saved =
        SUCCEEDED(link->SetPath(nativeTarget.c_str())) &&
        SUCCEEDED(link->QueryInterface(IID_IPersistFile, reinterpret_cast<void **>(&file))) &&
        SUCCEEDED(file->Save(nativeName.c_str(), TRUE));
    if (file)
        file->Release();
    link->Release();
    QVERIFY(saved);
}

void ShortcutResolverTest::initTestCase()
{
    m_root = QDir(m_folder.path()).canonicalPath();
    const QString photo = QStringLiteral("f\u00f6t\u00f6 \u65e5 100%.jpg");
    write(photo, "x");
    write(QStringLiteral("gone.jpg"), "x");
    makeShortcut(QStringLiteral("link.lnk"), photo);
    makeShortcut(QStringLiteral("l\u00efnk \u65e5.lnk"), photo);
    makeShortcut(QStringLiteral("broken.lnk"), QStringLiteral("gone.jpg"));
    QVERIFY(QFile::remove(path(QStringLiteral("gone.jpg"))));
    write(QStringLiteral("empty.lnk"), QByteArray());
    write(QStringLiteral("binary.lnk"), QByteArray(300000, '\xff'));
}

void ShortcutResolverTest::resolves_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("target"); // A name in the folder; null for nothing.
    const QString photo = QStringLiteral("f\u00f6t\u00f6 \u65e5 100%.jpg");
    QTest::newRow("plain file") << photo << photo;
    QTest::newRow("missing file") << QStringLiteral("nothing") << QStringLiteral("nothing");
    QTest::newRow("shortcut") << QStringLiteral("link.lnk") << photo;
    QTest::newRow("name of its own") << QStringLiteral("l\u00efnk \u65e5.lnk") << photo;
    QTest::newRow("broken") << QStringLiteral("broken.lnk") << QString();
    QTest::newRow("empty") << QStringLiteral("empty.lnk") << QString();
    QTest::newRow("binary") << QStringLiteral("binary.lnk") << QString();
}

void ShortcutResolverTest::resolves()
{
    QFETCH(QString, name);
    QFETCH(QString, target);
    QCOMPARE(resolveShortcut(path(name)), target.isNull() ? QString() : path(target));
}

QTEST_GUILESS_MAIN(ShortcutResolverTest)
#include "ShortcutResolverTest.moc"
