// SPDX-License-Identifier: GPL-3.0-or-later
#include "helpers/LogCapture.h"
#include "platform/ComApartment.h"
#include "platform/EmbeddedPage.h"
#include "platform/windows/ComPtr.h"
#include "platform/windows/ComString.h"

#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

#include <exdisp.h>
#include <exdispid.h>
#include <ocidl.h>

using namespace velmora;

/// The system's browser control in a window of the program.
class BrowserPageTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_window = std::make_unique<QWidget>();
        m_page = createEmbeddedPage().release();
        QVERIFY(m_page);
        (new QVBoxLayout(m_window.get()))->addWidget(m_page);
        m_window->resize(500, 400);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    }

    void cleanup() { m_window.reset(); }

    void fillsItsWindow()
    {
        const auto width = [this] {
            RECT rectangle = {};
            GetClientRect(host(), &rectangle);
            return int(rectangle.right);
        };
        QVERIFY(host());
        QVERIFY(m_page->needsOpaqueWindow());
        QTRY_COMPARE(width(), m_page->width());
        m_window->resize(700, 400);
        QTRY_COMPARE(width(), m_page->width());
        QVERIFY(width() > 600);
    }

    void tellsWhatItShows_data()
    {
        QTest::addColumn<int>("event");
        QTest::addColumn<QVariant>("argument");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("address");
        const QString text = QStringLiteral("Success code=4/ж日");
        const QString none;
        QTest::newRow("title") << DISPID_TITLECHANGE << QVariant(text) << text << none;
        QTest::newRow("address") << DISPID_NAVIGATECOMPLETE << QVariant(text) << none << text;
        QTest::newRow("other event") << DISPID_STATUSTEXTCHANGE << QVariant(text) << none << none;
        QTest::newRow("no argument")
            << DISPID_TITLECHANGE << QVariant() << QStringLiteral("-") << none;
    }

    void tellsWhatItShows()
    {
        QFETCH(int, event);
        QFETCH(QVariant, argument);
        QString title;
        QString address;
        connect(m_page, &EmbeddedPage::titleChanged, this,
                [&](const QString &text) { title = text.isEmpty() ? QStringLiteral("-") : text; });
        connect(m_page, &EmbeddedPage::urlChanged, this,
                [&](const QString &text) { address = text; });
        const ComString text(argument.toString());
        VARIANT value;
        VariantInit(&value);
        value.vt = VT_BSTR;
        value.bstrVal = text.get();
        DISPPARAMS parameters = {&value, nullptr, argument.isNull() ? 0U : 1U, 0};
        IDispatch *const receiver = sink();
        QVERIFY(receiver);
        QCOMPARE(receiver->Invoke(event, IID_NULL, LOCALE_NEUTRAL, DISPATCH_METHOD, &parameters,
                                  nullptr, nullptr, nullptr),
                 S_OK);
        disconnect(m_page, nullptr, this, nullptr);
        QTEST(title, "title");
        QTEST(address, "address");
    }

    void navigates()
    {
        LogCapture log;
        m_page->navigate(QUrl(QStringLiteral("about:blank")));
        QCOMPARE(log.lines(QtWarningMsg), QStringList());
    }

    void endsWithItsWindow()
    {
        const HWND window = host();
        QVERIFY(IsWindow(window));
        m_window.reset();
        QVERIFY(!IsWindow(window));
    }

private:
    HWND host() const
    {
        HWND found = nullptr;
        EnumChildWindows(
            reinterpret_cast<HWND>(m_window->winId()),
            [](HWND window, LPARAM to) -> BOOL {
                wchar_t name[32] = {};
                GetClassNameW(window, name, 32);
                if (wcscmp(name, L"AtlAxWin") == 0)
                    *reinterpret_cast<HWND *>(to) = window;
                return TRUE;
            },
            reinterpret_cast<LPARAM>(&found));
        return found;
    }

    ComPtr<IUnknown> control() const
    {
        using GetControl = HRESULT(WINAPI *)(HWND, IUnknown **);
        const auto getControl = reinterpret_cast<GetControl>(reinterpret_cast<void *>(
            GetProcAddress(GetModuleHandleW(L"atl.dll"), "AtlAxGetControl")));
        ComPtr<IUnknown> found;
        if (getControl)
            getControl(host(), found.ReleaseAndGetAddressOf());
        return found;
    }

    /// What the page has connected to the control.
    IDispatch *sink() const
    {
        ComPtr<IConnectionPointContainer> container;
        ComPtr<IConnectionPoint> point;
        ComPtr<IEnumConnections> all;
        CONNECTDATA connection = {};
        if (FAILED(control().As(&container)) ||
            FAILED(container->FindConnectionPoint(__uuidof(DWebBrowserEvents),
                                                  point.ReleaseAndGetAddressOf())) ||
            FAILED(point->EnumConnections(all.ReleaseAndGetAddressOf())) ||
            all->Next(1, &connection, nullptr) != S_OK)
            return nullptr;
        // Windows gives a reference and Wine does not, so it is kept. The sink derives from nothing
        // else.
        return static_cast<IDispatch *>(connection.pUnk);
    }

    const ComApartment m_apartment;
    std::unique_ptr<QWidget> m_window;
    EmbeddedPage *m_page = nullptr;
};

QTEST_MAIN(BrowserPageTest)
#include "BrowserPageTest.moc"
