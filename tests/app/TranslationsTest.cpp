// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Translations.h"
#include "app/Paths.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>

using namespace velmora;

class TranslationsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        qputenv("VELMORA_DATA_DIR", QFile::encodeName(m_data.path()));
        QVERIFY(Paths::ensureFolder(Paths::translationsFolder()));
    }

    void missingFile()
    {
        QTranslator translator;
        QTest::ignoreMessage(QtInfoMsg, "Load translation: velmora_xx.qm result: false");
        QVERIFY(!Translations::load(translator, QStringLiteral("xx")));
    }

    void damagedFile()
    {
        write(QStringLiteral("velmora_zz.qm"), QByteArray(5000, 'q'));
        QTranslator translator;
        QVERIFY(!Translations::load(translator, QStringLiteral("zz")));
    }

    void realFile()
    {
        const QString lrelease = QStandardPaths::findExecutable(
            QStringLiteral("lrelease"),
            {QStringLiteral("/usr/lib/qt5/bin"), QStringLiteral("/usr/bin")});
        if (lrelease.isEmpty())
            QSKIP("lrelease is not installed");
        write(QStringLiteral("velmora_de.ts"),
              "<!DOCTYPE TS><TS version=\"2.1\" language=\"de\"><context><name>C</name><message>"
              "<source>Loading</source><translation>L\xc3\xa4"
              "dt</translation></message>"
              "</context></TS>");
        QCOMPARE(QProcess::execute(
                     lrelease, {QStringLiteral("-silent"), path(QStringLiteral("velmora_de.ts"))}),
                 0);
        QTranslator translator;
        QVERIFY(Translations::load(translator, QStringLiteral("de_AT")));
        QCOMPARE(translator.translate("C", "Loading"), QStringLiteral("L\u00e4dt"));
        QVERIFY(Translations::available().contains(QStringLiteral("de")));

        // Texts of Qt lie there too, under the names that Qt gives them.
        QVERIFY(QFile::copy(path(QStringLiteral("velmora_de.qm")),
                            path(QStringLiteral("qtbase_zh_CN.qm"))));
        QTranslator qtTranslator;
        QVERIFY(Translations::loadQt(qtTranslator, QStringLiteral("zh")));
        QVERIFY(!Translations::loadQt(qtTranslator, QStringLiteral("eo")));
        QCOMPARE(Translations::available().contains(QStringLiteral("zh_CN")), false);
    }

private:
    static QString path(const QString &name)
    {
        return Paths::translationsFolder() + QLatin1Char('/') + name;
    }
    static void write(const QString &name, const QByteArray &content)
    {
        QFile file(path(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    QTemporaryDir m_data;
};

QTEST_GUILESS_MAIN(TranslationsTest)
#include "TranslationsTest.moc"
