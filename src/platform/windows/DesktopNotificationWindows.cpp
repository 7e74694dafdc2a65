// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/DesktopNotification.h"

#include "platform/PlatformLog.h"
#include "platform/windows/NotificationIcon.h"

#include <QCoreApplication>

#include <windows.h>

#include <shellapi.h>

#include <algorithm>

namespace velmora
{

namespace
{

constexpr UINT kIconMessage = WM_APP + 1;
constexpr UINT kIconId = 1;
constexpr WORD kProgramIcon = 1; // In the resources of the program.
const wchar_t kClassName[] = L"VelmoraNotificationIcon";

LRESULT CALLBACK windowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == kIconMessage) {
        auto *icon = reinterpret_cast<NotificationIcon *>(GetWindowLongPtrW(window, GWLP_USERDATA));
        if (icon)
            icon->onIconMessage(LOWORD(lParam));
        return 0;
    }
    return DefWindowProcW(window, message, wParam, lParam);
}

HWND createMessageWindow(NotificationIcon *icon)
{
    const HINSTANCE instance = GetModuleHandleW(nullptr);
    WNDCLASSW windowClass = {};
    windowClass.lpfnWndProc = windowProcedure;
    windowClass.hInstance = instance;
    windowClass.lpszClassName = kClassName;
    RegisterClassW(&windowClass);
    const HWND window = CreateWindowExW(0, kClassName, L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                                        instance, nullptr);
    if (window)
        SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(icon));
    return window;
}

/// Copies as much of @p text as fits, always with the closing zero.
template <size_t Size> void copyText(wchar_t (&target)[Size], const QString &text)
{
    const int length = std::min(text.size(), static_cast<int>(Size) - 1);
    text.left(length).toWCharArray(target);
    target[length] = L'\0';
}

NOTIFYICONDATAW iconData(void *window)
{
    NOTIFYICONDATAW data = {};
    data.cbSize = sizeof(data);
    data.hWnd = static_cast<HWND>(window);
    data.uID = kIconId;
    return data;
}

} // namespace

NotificationIcon::NotificationIcon() : m_window(createMessageWindow(this))
{
    if (!m_window)
        qCWarning(lcPlatform) << "Cannot make the window of the notification icon, error:"
                              << GetLastError();
}

NotificationIcon::~NotificationIcon()
{
    if (m_added) {
        NOTIFYICONDATAW data = iconData(m_window);
        Shell_NotifyIconW(NIM_DELETE, &data);
    }
    if (m_window)
        DestroyWindow(static_cast<HWND>(m_window));
}

void NotificationIcon::show(const QString &title, const QString &text)
{
    if (!m_window)
        return;
    NOTIFYICONDATAW data = iconData(m_window);
    data.uFlags = NIF_MESSAGE | NIF_ICON | NIF_TIP | NIF_INFO;
    data.uCallbackMessage = kIconMessage;
    data.hIcon = LoadIconW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(kProgramIcon));
    data.dwInfoFlags = NIIF_INFO;
    copyText(data.szTip, QCoreApplication::applicationName());
    copyText(data.szInfoTitle, title);
    copyText(data.szInfo, text);
    if (Shell_NotifyIconW(m_added ? NIM_MODIFY : NIM_ADD, &data))
        m_added = true;
    else
        qCInfo(lcPlatform) << "No notification: Shell_NotifyIcon failed";
}

void NotificationIcon::onIconMessage(unsigned int message)
{
    if (message == NIN_BALLOONUSERCLICK || message == WM_LBUTTONUP)
        emit activated();
}

std::unique_ptr<DesktopNotification> createDesktopNotification()
{
    return std::make_unique<NotificationIcon>();
}

} // namespace velmora
