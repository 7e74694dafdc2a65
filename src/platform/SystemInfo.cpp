// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/SystemInfo.h"

#include "platform/MachineInfo.h"
#include "platform/PlatformLog.h"

#include <QGuiApplication>
#include <QScreen>
#include <QSysInfo>
#include <QThread>
#include <QTouchDevice>

namespace velmora
{

QSize primaryScreenSize()
{
    const QScreen *const screen = QGuiApplication::primaryScreen();
    if (!screen) {
        qCWarning(lcPlatform) << "Primary screen is unavailable";
        return {};
    }
    return screen->size() * screen->devicePixelRatio();
}

SystemInfo readSystemInfo()
{
    SystemInfo info;
    info.osId = QSysInfo::prettyProductName();
    info.processorCount = QThread::idealThreadCount();
    for (const QTouchDevice *device : QTouchDevice::devices())
        info.touch = info.touch || device->type() == QTouchDevice::TouchScreen;
    info.screen = primaryScreenSize();
    if (const QScreen *const screen = QGuiApplication::primaryScreen())
        info.dpi = qRound(screen->logicalDotsPerInch() * screen->devicePixelRatio());
    readMachineInfo(info);
    qCInfo(lcPlatform) << "DPI:" << info.dpi;
    return info;
}

} // namespace velmora
