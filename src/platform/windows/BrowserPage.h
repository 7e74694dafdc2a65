// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/EmbeddedPage.h"
#include "platform/windows/ComPtr.h"
#include "platform/windows/EventConnection.h"

#include <QAbstractNativeEventFilter>

#include <optional>

#include <exdisp.h>

namespace velmora
{

/// The browser control of Windows in a window of its own. Within a ComApartment.
class BrowserPage : public EmbeddedPage, private QAbstractNativeEventFilter
{
public:
    BrowserPage();
    ~BrowserPage() override;
    Q_DISABLE_COPY(BrowserPage)

    /// False when this system has no such control; the log has the reason.
    bool isReady() const { return m_events.has_value(); }

    void navigate(const QUrl &address) override;
    bool needsOpaqueWindow() const override { return true; }

private:
    bool createControl();
    void embed();
    bool nativeEventFilter(const QByteArray &, void *message, long *result) override;

    HWND m_host = nullptr; ///< Owned; it holds the control.
    ComPtr<IWebBrowser2> m_browser;
    std::optional<EventConnection> m_events;
};

} // namespace velmora
