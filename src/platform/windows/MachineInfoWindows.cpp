// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/MachineInfo.h"

#include "platform/PlatformLog.h"
#include "platform/SystemInfo.h"

#include <QSettings>

#include <windows.h>

namespace velmora
{

namespace
{

QString videoAdapter()
{
    DISPLAY_DEVICEW device = {};
    device.cb = sizeof(device);
    if (EnumDisplayDevicesW(nullptr, 0, &device, 0))
        return QString::fromWCharArray(device.DeviceString);
    qCWarning(lcPlatform) << "Failed to get display device, error:" << GetLastError();
    return {};
}

int memoryMb()
{
    MEMORYSTATUSEX status = {};
    status.dwLength = sizeof(status);
    if (GlobalMemoryStatusEx(&status))
        return static_cast<int>(status.ullTotalPhys / (1024 * 1024));
    qCWarning(lcPlatform) << "Failed to get installed RAM, error:" << GetLastError();
    return 0;
}

bool hasBattery()
{
    constexpr BYTE kNoBattery = 128;
    constexpr BYTE kUnknown = 255;
    SYSTEM_POWER_STATUS status = {};
    return GetSystemPowerStatus(&status) && status.BatteryFlag != kUnknown &&
           (status.BatteryFlag & kNoBattery) == 0;
}

template <typename Function> Function findFunction(HMODULE library, const char *name)
{
    if (!library)
        return nullptr;
    return reinterpret_cast<Function>(reinterpret_cast<void *>(GetProcAddress(library, name)));
}

bool isEmulated32()
{
    using Query = BOOL(WINAPI *)(HANDLE, PBOOL);
    const auto query = findFunction<Query>(GetModuleHandleW(L"kernel32"), "IsWow64Process");
    BOOL emulated = FALSE;
    return query && query(GetCurrentProcess(), &emulated) && emulated;
}

// The library is there from Windows 8.1 on; 0 without it.
int monitorDpi()
{
    using Query = HRESULT(WINAPI *)(HMONITOR, int, UINT *, UINT *);
    const HMODULE library = LoadLibraryW(L"SHCore.dll");
    const auto query = findFunction<Query>(library, "GetDpiForMonitor");
    const HMONITOR monitor = MonitorFromPoint(POINT{0, 0}, MONITOR_DEFAULTTOPRIMARY);
    UINT x = 0;
    UINT y = 0;
    constexpr int kEffective = 0;
    const bool ok = query && SUCCEEDED(query(monitor, kEffective, &x, &y));
    if (library)
        FreeLibrary(library);
    return ok ? static_cast<int>(x) : 0;
}

} // namespace

void readMachineInfo(SystemInfo &info)
{
    const QSettings processor(
        QStringLiteral("HKEY_LOCAL_MACHINE\\HARDWARE\\DESCRIPTION\\System\\CentralProcessor\\0"),
        QSettings::NativeFormat);
    info.processor = processor.value(QStringLiteral("ProcessorNameString")).toString().trimmed();
    info.memoryMb = memoryMb();
    info.videoAdapter = videoAdapter();
    info.laptop = hasBattery();
    info.emulated32 = isEmulated32();
    const int dpi = monitorDpi();
    if (dpi > 0)
        info.dpi = dpi;
}

} // namespace velmora
