// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ProgramLanguage.h"
#include "app/Paths.h"

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
        QTest::newRow("language") << QStringLiteral("qtbase_de") << QStringLiteral("de") << true;
        QTest::newRow("country") << QStringLiteral("qtbase_de") << QStringLiteral("de_AT") << true;
        QTest::newRow("its only country")
            << QStringLiteral("qtbase_zh_CN") << QStringLiteral("zh") << true;
        QTest::newRow("another") << QStringLiteral("qtbase_de") << QStringLiteral("xx") << false;
    }

    void textsOfQtFollow()
    {
        QFETCH(QString, file);
        QFETCH(QString, locale);
        QFETCH(bool, translated);
        compile(file, "<context><name>QColorDialog</name><message><source>Hu&amp;e:</source>"
                      "<translation>~</translation></message></context>");
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

    void sameLanguageChangesNothing()
    {
        compile(QStringLiteral("velmora_de"), "<context><name>C</name><message><source>a</source>"
                                              "<translation>b</translation></message></context>");
        ProgramLanguage language;
        QVERIFY(language.apply(QStringLiteral("de")));
        m_changes = 0;
        QVERIFY(language.apply(QStringLiteral("de")));
        QCOMPARE(m_changes, 0);
        QVERIFY(!language.apply(QStringLiteral("xx")));
        QVERIFY(m_changes > 0);
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
    static void compile(const QString &name, const QByteArray &contexts)
    {
        const QString lrelease = QStandardPaths::findExecutable(
            QStringLiteral("lrelease"),
            {QStringLiteral("/usr/lib/qt5/bin"), QStringLiteral("/usr/bin")});
        if (lrelease.isEmpty())
            QSKIP("lrelease is not installed");
        QFile source(path(name + QStringLiteral(".ts")));
        QVERIFY(source.open(QIODevice::WriteOnly));
        source.write("<!DOCTYPE TS><TS version=\"2.1\">" + contexts + "</TS>");
        source.close();
        QCOMPARE(QProcess::execute(lrelease, {QStringLiteral("-silent"), source.fileName()}), 0);
    }

    QTemporaryDir m_data;
    int m_changes = 0;
};

QTEST_GUILESS_MAIN(ProgramLanguageTest)
#include "ProgramLanguageTest.moc"
