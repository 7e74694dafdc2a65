// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/windows/BrowserPage.h"

#include "platform/PlatformLog.h"
#include "platform/windows/BrowserEvents.h"
#include "platform/windows/ComResult.h"
#include "platform/windows/ComString.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QSettings>
#include <QVBoxLayout>
#include <QWindow>

namespace velmora
{

namespace
{

const wchar_t kControl[] = L"{8856F961-340A-11D0-A96B-00C04FD705A2}";

/// Pages are shown as by Internet Explorer 7 to programs that do not ask for more.
void askForLatestEngine()
{
    constexpr int kInternetExplorer11 = 11001;
    QSettings programs(QStringLiteral("HKEY_CURRENT_USER\\Software\\Microsoft\\Internet Explorer\\"
                                      "Main\\FeatureControl\\FEATURE_BROWSER_EMULATION"),
                       QSettings::NativeFormat);
    programs.setValue(QFileInfo(QCoreApplication::applicationFilePath()).fileName(),
                      kInternetExplorer11);
}

template <typename Function> Function findFunction(HMODULE library, const char *name)
{
    return reinterpret_cast<Function>(reinterpret_cast<void *>(GetProcAddress(library, name)));
}

using GetControl = HRESULT(WINAPI *)(HWND, IUnknown **);

/// Of the library that Windows has for controls in windows, once it is ready; null without it.
GetControl findGetControl()
{
    using Initialise = BOOL(WINAPI *)();
    const HMODULE library = LoadLibraryW(L"atl.dll");
    if (!library)
        return nullptr;
    const auto initialise = findFunction<Initialise>(library, "AtlAxWinInit");
    return initialise && initialise() ? findFunction<GetControl>(library, "AtlAxGetControl")
                                      : nullptr;
}

/// A hidden window with the control in it.
HWND createHost(ComPtr<IUnknown> &control)
{
    static const GetControl getControl = findGetControl();
    if (!getControl)
        return nullptr;
    const HWND host = CreateWindowExW(0, L"AtlAxWin", kControl, WS_POPUP | WS_CLIPCHILDREN, 0, 0, 1,
                                      1, nullptr, nullptr, GetModuleHandleW(nullptr), nullptr);
    if (host)
        stepSucceeded(getControl(host, control.ReleaseAndGetAddressOf()), "AtlAxGetControl");
    return host;
}

} // namespace

BrowserPage::BrowserPage()
{
    askForLatestEngine();
    if (!createControl()) {
        qCWarning(lcPlatform) << "The browser control is not available";
        return;
    }
    embed();
    QCoreApplication::instance()->installNativeEventFilter(this);
}

BrowserPage::~BrowserPage()
{
    m_events.reset();
    m_browser.Reset();
    if (m_host)
        DestroyWindow(m_host);
}

bool BrowserPage::createControl()
{
    ComPtr<IUnknown> control;
    m_host = createHost(control);
    if (!control || !stepSucceeded(control.As(&m_browser), "QueryInterface IID_IWebBrowser2"))
        return false;
    // Otherwise faults of a page's scripts open a window each.
    stepSucceeded(m_browser->put_Silent(VARIANT_TRUE), "put_Silent");
    ComPtr<BrowserEvents> sink;
    // Not by Attach(), which in MinGW adds a reference.
    *sink.GetAddressOf() =
        new BrowserEvents([this](const QString &title) { emit titleChanged(title); },
                          [this](const QString &address) { emit urlChanged(address); });
    m_events.emplace(m_browser.Get(), __uuidof(DWebBrowserEvents), sink.Get());
    return true;
}

void BrowserPage::embed()
{
    auto *container =
        QWidget::createWindowContainer(QWindow::fromWinId(reinterpret_cast<WId>(m_host)), this);
    container->setFocusPolicy(Qt::StrongFocus);
    setFocusProxy(container);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(container);
}

void BrowserPage::navigate(const QUrl &address)
{
    const ComString text(address.toString(QUrl::FullyEncoded));
    succeeded(m_browser->Navigate(text.get(), nullptr, nullptr, nullptr, nullptr),
              "Navigate failed, result: '%1'");
}

bool BrowserPage::nativeEventFilter(const QByteArray &, void *message, long *)
{
    // Tab, Enter and the keys for editing reach the page only through its control.
    auto *key = static_cast<MSG *>(message);
    if (key->message < WM_KEYFIRST || key->message > WM_KEYLAST || !IsChild(m_host, key->hwnd))
        return false;
    ComPtr<IOleInPlaceActiveObject> active;
    return SUCCEEDED(m_browser.As(&active)) && active->TranslateAccelerator(key) == S_OK;
}

std::unique_ptr<EmbeddedPage> createEmbeddedPage()
{
    auto page = std::make_unique<BrowserPage>();
    if (!page->isReady())
        return nullptr;
    return page;
}

} // namespace velmora
