// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/BalancedText.h"

#include <QFontMetrics>
#include <QTest>

using namespace velmora;

class BalancedTextTest : public QObject
{
    Q_OBJECT
private slots:
    void linesAreAboutEquallyLong_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("line"); ///< What just fits into the area.
        QTest::addColumn<double>("share"); ///< Of the area, at most.
        const QString word = QStringLiteral("word ");
        const QString kana(20, QChar(0x3042));
        QTest::newRow("last word alone") << word.repeated(10) << word.repeated(9) << 0.7;
        QTest::newRow("last letter alone") << kana << kana.left(19) << 0.6;
        QTest::newRow("fits") << word << word.repeated(9) << 0.2;
        const QString longWord(30, QLatin1Char('x'));
        QTest::newRow("long word") << (longWord + QStringLiteral(" a")) << longWord << 1.0;
        QTest::newRow("too long word") << longWord << longWord.left(20) << 1.0;
    }

    void linesAreAboutEquallyLong()
    {
        QFETCH(QString, text);
        QFETCH(QString, line);
        QFETCH(double, share);
        const QFontMetrics metrics{QFont()};
        const QRect area(7, 5, metrics.horizontalAdvance(line) + 1, 500);
        const QRect part = BalancedText::part(metrics, area, text);
        constexpr int kFlags = Qt::AlignHCenter | Qt::TextWordWrap;
        QCOMPARE(metrics.boundingRect(part, kFlags, text).height(),
                 metrics.boundingRect(area, kFlags, text).height());
        QVERIFY2(part.width() <= area.width() * share, qPrintable(QString::number(part.width())));
        QVERIFY(area.contains(part));
        QVERIFY(qAbs(part.center().x() - area.center().x()) <= 1);
        if (share < 1)
            QVERIFY(metrics.boundingRect(part, kFlags, text).width() <= part.width());
    }
};

QTEST_MAIN(BalancedTextTest)
#include "BalancedTextTest.moc"
