// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Translations.h"
#include "chrome/Theme.h"
#include "ui/main/PageTour.h"

#include <QAbstractButton>
#include <QDialog>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QTextEdit>
#include <QToolButton>
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

/// A text that is shown, the room that it needs and the room that it has, in px.
struct ShownText {
    QString text;
    int needed;
    int room;
};

QVector<ShownText> textsOf(const QTabBar &bar)
{
    QVector<ShownText> texts;
    for (int i = 0; i < bar.count(); ++i)
        texts.append({bar.tabText(i), bar.sizeHint().width(), bar.width()});
    return texts;
}

QVector<ShownText> textsOf(const QHeaderView &header)
{
    QVector<ShownText> texts;
    for (int i = 0; header.model() && i < header.count(); ++i)
        texts.append(
            {header.model()->headerData(i, header.orientation(), Qt::DisplayRole).toString(),
             header.sectionSizeHint(i), header.sectionSize(i)});
    return texts;
}

QVector<ShownText> textsOf(const QLabel &label)
{
    if (label.textFormat() == Qt::RichText)
        return {};
    // A window's title is cut off where the window is narrow.
    const bool isTitle = label.objectName() == QLatin1String("titleText") &&
                         !qobject_cast<const QDialog *>(label.window());
    if (isTitle)
        return {{label.text(), 0, 0}};
    if (label.wordWrap())
        return {{label.text(), label.heightForWidth(label.width()), label.height()}};
    return {{label.text(), label.sizeHint().width(), label.width()}};
}

QVector<ShownText> textsOf(const QWidget &widget)
{
    constexpr int kFrames = 16; // px of a field beside its text
    if (const auto *label = qobject_cast<const QLabel *>(&widget))
        return textsOf(*label);
    if (const auto *bar = qobject_cast<const QTabBar *>(&widget))
        return textsOf(*bar);
    if (const auto *header = qobject_cast<const QHeaderView *>(&widget))
        return textsOf(*header);
    if (const auto *field = qobject_cast<const QLineEdit *>(&widget))
        return {{field->placeholderText(),
                 field->fontMetrics().horizontalAdvance(field->placeholderText()) + kFrames,
                 field->width()}};
    if (const auto *field = qobject_cast<const QTextEdit *>(&widget))
        return {{field->placeholderText(), 0, 0}}; // broken into lines
    const auto *tool = qobject_cast<const QToolButton *>(&widget);
    if (tool && tool->toolButtonStyle() == Qt::ToolButtonIconOnly)
        return {};
    if (const auto *button = qobject_cast<const QAbstractButton *>(&widget))
        return {{button->text(), widget.sizeHint().width(), widget.width()}};
    return {};
}

} // namespace

class LanguagesTest : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        Theme::install(*qApp);
        Theme::useProgramFont();
    }

    void showsWholeTranslatedTexts_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QSize>("size");
        for (const char *language : {"en", "de", "fr", "es", "it", "pl", "ru", "ja", "zh"}) {
            QTest::addRow("%s", language) << QString::fromLatin1(language) << QSize(1024, 700);
            QTest::addRow("%s, wide", language)
                << QString::fromLatin1(language) << QSize(1920, 1080);
        }
    }
    void showsWholeTranslatedTexts()
    {
        QFETCH(QString, language);
        QFETCH(QSize, size);
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
                const QVector<ShownText> texts =
                    widget->isVisible() ? textsOf(*widget) : QVector<ShownText>();
                for (const ShownText &shownText : texts) {
                    const QString &text = shownText.text;
                    if (text.isEmpty())
                        continue;
                    ++seen;
                    if (shownText.needed > shownText.room + 1)
                        faults.append(QStringLiteral("%1: \"%2\" is clipped (%3: %4 of %5 px)")
                                          .arg(page, text, widget->objectName())
                                          .arg(shownText.room)
                                          .arg(shownText.needed));
                    if (catalogue.contains(text) && !foreign.contains(text))
                        faults.append(
                            QStringLiteral("%1: \"%2\" is not translated").arg(page, text));
                }
            }
        });
        tour.setWindowSize(size);
        if (size.width() > 1024)
            tour.leaveOutDialogs();
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
