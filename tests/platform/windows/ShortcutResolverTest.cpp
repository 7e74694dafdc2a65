// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ShortcutResolver.h"
#include "helpers/Files.h"
#include "platform/ComApartment.h"
#include "platform/windows/ComPtr.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <objbase.h>
#include <shlobj.h>

using namespace velmora;

class ShortcutResolverTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        m_root = QDir(m_folder.path()).canonicalPath() + QLatin1Char('/');
        QVERIFY(writeFile(m_root + kPhoto, "x"));
        QVERIFY(writeFile(m_root + QStringLiteral("gone.jpg"), "x"));
        makeShortcut(QStringLiteral("link.lnk"), kPhoto);
        makeShortcut(kOwnName, kPhoto);
        makeShortcut(QStringLiteral("broken.lnk"), QStringLiteral("gone.jpg"));
        QVERIFY(QFile::remove(m_root + QStringLiteral("gone.jpg")));
        QVERIFY(writeFile(m_root + QStringLiteral("empty.lnk")));
        QVERIFY(writeFile(m_root + QStringLiteral("binary.lnk"), QByteArray(300000, '\xff')));
    }

    void resolves_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("target"); // A name in the folder; null for nothing.
        QTest::newRow("plain file") << kPhoto << kPhoto;
        QTest::newRow("missing file") << "nothing" << QStringLiteral("nothing");
        QTest::newRow("shortcut") << "link.lnk" << kPhoto;
        QTest::newRow("name of its own") << kOwnName << kPhoto;
        for (const char *useless : {"broken.lnk", "empty.lnk", "binary.lnk"})
            QTest::newRow(useless) << useless << QString();
    }

    void resolves()
    {
        QFETCH(QString, name);
        QFETCH(QString, target);
        QCOMPARE(resolveShortcut(m_root + name), target.isNull() ? QString() : m_root + target);
    }

private:
    // As the Explorer makes them.
    void makeShortcut(const QString &name, const QString &target) const
    {
        const std::wstring nativeTarget = QDir::toNativeSeparators(m_root + target).toStdWString();
        const std::wstring nativeName = QDir::toNativeSeparators(m_root + name).toStdWString();
        ComPtr<IShellLinkW> link;
        ComPtr<IPersistFile> file;
        QVERIFY(SUCCEEDED(
            CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkW,
                             reinterpret_cast<void **>(link.ReleaseAndGetAddressOf()))));
        QVERIFY(SUCCEEDED(link->SetPath(nativeTarget.c_str())));
        QVERIFY(SUCCEEDED(link.As(&file)) && SUCCEEDED(file->Save(nativeName.c_str(), TRUE)));
    }

    const QString kPhoto = QStringLiteral("f\u00f6t\u00f6 \u65e5 100%.jpg");
    const QString kOwnName = QStringLiteral("l\u00efnk \u65e5.lnk");
    const ComApartment m_apartment;
    QTemporaryDir m_folder;
    QString m_root; ///< With a slash behind.
};

QTEST_GUILESS_MAIN(ShortcutResolverTest)
#include "ShortcutResolverTest.moc"
