// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/DesktopComposition.h"

#include <QGuiApplication>
#include <QX11Info>

namespace velmora
{

bool isDesktopComposited()
{
    if (QX11Info::isPlatformX11())
        return QX11Info::isCompositingManagerRunning();
    return QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

} // namespace velmora
