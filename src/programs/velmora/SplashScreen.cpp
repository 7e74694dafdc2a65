// SPDX-License-Identifier: GPL-3.0-or-later
#include "programs/velmora/SplashScreen.h"

#include <QCoreApplication>
#include <QPainter>
#include <QThread>

namespace velmora
{

SplashScreen::SplashScreen() : QSplashScreen(picture())
{
    setObjectName(QStringLiteral("splashScreen"));
}

QStringList SplashScreen::texts()
{
    constexpr int kPasses = 7;
    const QString loading = tr("Loading");
    QStringList list;
    QString text = loading;
    for (int pass = 0; pass < kPasses; ++pass) {
        list.append(text);
        if (pass % 3 == 0)
            text = loading;
        text += QLatin1Char('.');
    }
    return list;
}

void SplashScreen::play(unsigned long passMs)
{
    show();
    const QStringList list = texts();
    for (const QString &text : list) {
        showMessage(text, Qt::AlignLeft, Qt::black);
        QCoreApplication::processEvents();
        QThread::msleep(passMs);
    }
}

QPixmap SplashScreen::picture()
{
    QPixmap pixmap(QStringLiteral(":/images/images/lloading2.png"));
    if (!pixmap.isNull())
        return pixmap;
    pixmap = QPixmap(480, 270);
    pixmap.fill(QColor(0xf2, 0xf4, 0xf7));
    QPainter painter(&pixmap);
    QFont font = painter.font();
    font.setPixelSize(40);
    painter.setFont(font);
    painter.drawText(pixmap.rect(), Qt::AlignCenter, QCoreApplication::applicationName());
    return pixmap;
}

} // namespace velmora
