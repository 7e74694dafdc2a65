// SPDX-License-Identifier: GPL-3.0-or-later
#include "programs/velmora/SplashScreen.h"

#include <QSignalSpy>
#include <QTest>

using namespace velmora;

class SplashScreenTest : public QObject
{
    Q_OBJECT

private slots:
    void showsSevenTexts()
    {
        SplashScreen splash;
        QSignalSpy shown(&splash, &QSplashScreen::messageChanged);
        splash.play(0);
        QStringList texts;
        for (const QList<QVariant> &arguments : qAsConst(shown))
            texts.append(arguments.first().toString());
        const QStringList expected = {QStringLiteral("Loading"),   QStringLiteral("Loading."),
                                      QStringLiteral("Loading.."), QStringLiteral("Loading..."),
                                      QStringLiteral("Loading."),  QStringLiteral("Loading.."),
                                      QStringLiteral("Loading...")};
        QCOMPARE(texts, expected);
    }

    void hasItsPicture()
    {
        const QPixmap resource(QStringLiteral(":/images/images/lloading2.png"));
        QVERIFY(!resource.isNull());
        QCOMPARE(SplashScreen().pixmap().toImage(), resource.toImage());
    }
};

QTEST_MAIN(SplashScreenTest)
#include "SplashScreenTest.moc"
