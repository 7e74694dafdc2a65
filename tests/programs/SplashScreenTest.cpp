// SPDX-License-Identifier: GPL-3.0-or-later
#include "programs/velmora/SplashScreen.h"
#include "helpers/Words.h"

#include <QtTest>

using namespace velmora;

class SplashScreenTest : public QObject
{
    Q_OBJECT

private slots:
    void showsItsPictureAndSevenTexts()
    {
        const QPixmap picture(QStringLiteral(":/images/images/lloading2.png"));
        QVERIFY(!picture.isNull());
        SplashScreen splash;
        QCOMPARE(splash.pixmap().toImage(), picture.toImage());
        QSignalSpy shown(&splash, &QSplashScreen::messageChanged);
        splash.play(0);
        QStringList texts;
        for (const QList<QVariant> &arguments : qAsConst(shown))
            texts.append(arguments.first().toString());
        QCOMPARE(texts,
                 words("Loading Loading. Loading.. Loading... Loading. Loading.. Loading..."));
    }
};

QTEST_MAIN(SplashScreenTest)
#include "SplashScreenTest.moc"
