// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ProgramLanguage.h"
#include "app/Paths.h"
#include "app/Translations.h"

#include <QFile>
#include <QLibraryInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

using namespace velmora;

class ProgramLanguageTest : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        qputenv("VELMORA_DATA_DIR", QFile::encodeName(m_data.path()));
        QVERIFY(Paths::ensureFolder(Paths::translationsFolder()));
        qApp->installEventFilter(this);
    }

    void textsOfQtFollow_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("locale");
        QTest::addColumn<bool>("translated");
        const QString german = QStringLiteral("qtbase_de");
        QTest::newRow("language") << german << "de" << true;
        QTest::newRow("country") << german << "de_AT" << true;
        QTest::newRow("its only country") << QStringLiteral("qtbase_zh_CN") << "zh" << true;
        QTest::newRow("another") << german << "xx" << false;
    }

    void textsOfQtFollow()
    {
        QFETCH(QString, file);
        QFETCH(QString, locale);
        QFETCH(bool, translated);
        if (!compile(file, "<context><name>QColorDialog</name><message><source>Hu&amp;e:</source>"
                           "<translation>~</translation></message></context>"))
            QSKIP("lrelease is not installed.");
        ProgramLanguage language;
        language.apply(locale);
        QCOMPARE(QCoreApplication::translate("QColorDialog", "Hu&e:"),
                 translated ? QStringLiteral("~") : QStringLiteral("Hu&e:"));
        language.apply(QStringLiteral("en"));
        QCOMPARE(QCoreApplication::translate("QColorDialog", "Hu&e:"), QStringLiteral("Hu&e:"));
        QVERIFY(QFile::remove(path(file + QStringLiteral(".qm"))));
    }

    void installedTextsOfQtAreFound()
    {
        const QString folder = QLibraryInfo::location(QLibraryInfo::TranslationsPath);
        if (!QFile::exists(folder + QStringLiteral("/qtbase_de.qm")))
            QSKIP("The translations of Qt are not installed.");
        ProgramLanguage language;
        language.apply(QStringLiteral("de"));
        QCOMPARE(QCoreApplication::translate("QColorDialog", "&Basic colors"),
                 QStringLiteral("Grundfar&ben"));
    }

    void ownTextsFollow()
    {
        if (!compile(QStringLiteral("velmora_de"),
                     "<context><name>C</name><message><source>a</source>"
                     "<translation>b</translation></message></context>"))
            QSKIP("lrelease is not installed.");
        ProgramLanguage language;
        QVERIFY(language.apply(QStringLiteral("de_AT")));
        QCOMPARE(QCoreApplication::translate("C", "a"), QStringLiteral("b"));
        m_changes = 0;
        QVERIFY(language.apply(QStringLiteral("de_AT")));
        QCOMPARE(m_changes, 0);
        QTest::ignoreMessage(QtInfoMsg, "Load translation: velmora_xx.qm result: false");
        QVERIFY(!language.apply(QStringLiteral("xx")));
        QVERIFY(m_changes > 0);
        QCOMPARE(QCoreApplication::translate("C", "a"), QStringLiteral("a"));
    }

    void damagedFileIsRefused()
    {
        QFile file(path(QStringLiteral("velmora_zz.qm")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(QByteArray(5000, 'q'));
        file.close();
        QVERIFY(!ProgramLanguage().apply(QStringLiteral("zz")));
    }

    /// Texts of Qt lie in the same folder, under the names that Qt gives them.
    void ownFilesAloneAreLanguages()
    {
        for (const char *name : {"velmora_eo.qm", "qtbase_zh_CN.qm"})
            QVERIFY(QFile(path(QLatin1String(name))).open(QIODevice::WriteOnly));
        const QStringList languages = Translations::available();
        QVERIFY(languages.contains(QStringLiteral("eo")));
        QCOMPARE(languages.filter(QStringLiteral("CN")), QStringList());
    }

private:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::LanguageChange)
            ++m_changes;
        return QObject::eventFilter(watched, event);
    }
    static QString path(const QString &name)
    {
        return Paths::translationsFolder() + QLatin1Char('/') + name;
    }
    /// False where the tool for it is missing.
    static bool compile(const QString &name, const QByteArray &contexts)
    {
        const QString lrelease = QStandardPaths::findExecutable(
            QStringLiteral("lrelease"),
            {QStringLiteral("/usr/lib/qt5/bin"), QStringLiteral("/usr/bin")});
        QFile source(path(name + QStringLiteral(".ts")));
        if (lrelease.isEmpty())
            return false;
        source.open(QIODevice::WriteOnly);
        source.write("<!DOCTYPE TS><TS version=\"2.1\">" + contexts + "</TS>");
        source.close();
        QProcess::execute(lrelease, {QStringLiteral("-silent"), source.fileName()});
        return true;
    }

    QTemporaryDir m_data;
    int m_changes = 0;
};

QTEST_GUILESS_MAIN(ProgramLanguageTest)
#include "ProgramLanguageTest.moc"
