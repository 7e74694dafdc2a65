// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Translations.h"
#include "chrome/Theme.h"
#include "ui/main/PageTour.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QLabel>
#include <QToolButton>
#include <QTranslator>
#include <QXmlStreamReader>
#include <QtTest>

using namespace velmora;

namespace
{

/// English text and translation of a language's catalogue.
QMultiHash<QString, QString> readCatalogue(const QString &language)
{
    QFile file(QStringLiteral(VELMORA_TRANSLATIONS "/velmora_%1.ts").arg(language));
    QMultiHash<QString, QString> texts;
    if (!file.open(QIODevice::ReadOnly))
        return texts;
    QXmlStreamReader xml(&file);
    QString source;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement() && xml.name() == QLatin1String("source"))
            source = xml.readElementText();
        else if (xml.isStartElement() && xml.name() == QLatin1String("translation"))
            texts.insert(source,
                         xml.readElementText(QXmlStreamReader::IncludeChildElements).trimmed());
    }
    return texts;
}

QString textOf(const QWidget &widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(&widget))
        return label->textFormat() == Qt::RichText ? QString() : label->text();
    const auto *tool = qobject_cast<const QToolButton *>(&widget);
    if (tool && tool->toolButtonStyle() == Qt::ToolButtonIconOnly)
        return {};
    if (const auto *button = qobject_cast<const QAbstractButton *>(&widget))
        return button->text();
    return {};
}

bool isClipped(const QWidget &widget)
{
    const auto *label = qobject_cast<const QLabel *>(&widget);
    if (label && label->wordWrap())
        return label->heightForWidth(label->width()) > label->height() + 1;
    return widget.sizeHint().width() > widget.width() + 1;
}

} // namespace

class LanguagesTest : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { Theme::install(*qApp); }

    void showsWholeTranslatedTexts_data()
    {
        QTest::addColumn<QString>("language");
        for (const char *language : {"en", "de", "fr", "es", "it", "pl", "ru", "ja", "zh"})
            QTest::newRow(language) << QString::fromLatin1(language);
    }

    void showsWholeTranslatedTexts()
    {
        QFETCH(QString, language);
        QTranslator translator;
        const bool english = language == QLatin1String("en");
        if (!english) {
            QVERIFY(Translations::load(translator, language));
            QCoreApplication::installTranslator(&translator);
        }
        const QMultiHash<QString, QString> catalogue = readCatalogue(language);
        QCOMPARE(catalogue.isEmpty(), english);
        QSet<QString> foreign;
        for (auto it = catalogue.begin(); it != catalogue.end(); ++it)
            foreign.insert(it.value());

        QStringList faults;
        int seen = 0;
        MainViewFixture fixture;
        fixture.settings.locale = language;
        PageTour tour(fixture, [&](const QString &page, QWidget &shown) {
            const QList<QWidget *> widgets = shown.findChildren<QWidget *>();
            for (const QWidget *widget : widgets) {
                const QString text = textOf(*widget);
                if (text.isEmpty() || !widget->isVisible())
                    continue;
                ++seen;
                if (isClipped(*widget))
                    faults.append(QStringLiteral("%1: \"%2\" is clipped (%3: %4 of %5 px)")
                                      .arg(page, text, widget->objectName())
                                      .arg(widget->width())
                                      .arg(widget->sizeHint().width()));
                if (catalogue.contains(text) && !foreign.contains(text))
                    faults.append(QStringLiteral("%1: \"%2\" is not translated").arg(page, text));
            }
        });
        tour.run({fixture.makePhoto(QStringLiteral("a.png")),
                  fixture.makePhoto(QStringLiteral("b.png"))});
        QCoreApplication::removeTranslator(&translator);
        faults.removeDuplicates();
        QVERIFY2(faults.isEmpty(), qPrintable(QLatin1Char('\n') + faults.join(QLatin1Char('\n'))));
        QVERIFY(seen > 100);
    }
};

QTEST_MAIN(LanguagesTest)
#include "LanguagesTest.moc"
