// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSplashScreen>
#include <QStringList>

namespace velmora
{

/// The picture shown while the program starts, with "Loading" and up to three running dots.
class SplashScreen : public QSplashScreen
{
    Q_OBJECT
public:
    SplashScreen();

    /// The texts of the seven passes, in order.
    static QStringList texts();
    /// Shows each text for @p passMs milliseconds; blocks that long, about 3.5 s in the program.
    void play(unsigned long passMs = 500);

private:
    static QPixmap picture();
};

} // namespace velmora
