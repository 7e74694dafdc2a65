// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/windows/FakeParts.h"

#include <ocidl.h>

namespace velmora
{

using namespace FakeParts;

namespace
{

constexpr DISPID kUpdate = 0x200;
constexpr DWORD kCookie = 7;

FakeComObject *makePoint(FakeDisc &fake)
{
    auto *point =
        new FakeComObject(fake, QStringLiteral("IConnectionPoint"), __uuidof(IConnectionPoint));
    point->on(5, [](FakeComObject *self, IUnknown *sink, DWORD *cookie) {
        const HRESULT result = self->note(QStringLiteral("Advise"));
        if (FAILED(result))
            return result;
        *cookie = kCookie;
        return sink->QueryInterface(IID_IDispatch, reinterpret_cast<void **>(&disc(self).sink));
    });
    point->on(6, [](FakeComObject *self, DWORD cookie) {
        IDispatch *&sink = disc(self).sink;
        if (cookie != kCookie || !sink)
            self->note(QStringLiteral("Unadvise %1").arg(cookie));
        else
            sink->Release();
        sink = nullptr;
        return S_OK;
    });
    return point;
}

} // namespace

void FakeParts::fire(FakeComObject *source, QVector<VARIANT> arguments)
{
    IDispatch *sink = disc(source).sink;
    if (!sink)
        return;
    DISPPARAMS parameters = {arguments.data(), nullptr, static_cast<UINT>(arguments.size()), 0};
    const HRESULT result = sink->Invoke(kUpdate, IID_NULL, LOCALE_NEUTRAL, DISPATCH_METHOD,
                                        &parameters, nullptr, nullptr, nullptr);
    if (FAILED(result))
        source->note(QStringLiteral("event failed: %1").arg(static_cast<quint32>(result), 0, 16));
}

void FakeParts::addEvents(FakeComObject *source)
{
    source->furtherInterface = [source](REFIID id) -> IUnknown * {
        if (id != __uuidof(IConnectionPointContainer) ||
            FAILED(source->note(QStringLiteral("QueryInterface"))))
            return nullptr;
        auto *container =
            new FakeComObject(source->record(), QStringLiteral("IConnectionPointContainer"),
                              __uuidof(IConnectionPointContainer));
        container->on(4, [](FakeComObject *self, const IID *wanted, IConnectionPoint **point) {
            const bool data = *wanted == __uuidof(DDiscFormat2DataEvents);
            const HRESULT result =
                self->note(data ? QStringLiteral("FindConnectionPoint DDiscFormat2DataEvents")
                                : QStringLiteral("FindConnectionPoint DDiscFormat2EraseEvents"));
            if (SUCCEEDED(result))
                *point = makePoint(disc(self))->as<IConnectionPoint>();
            return result;
        });
        return container->as<IUnknown>();
    };
}

FakeDisc &FakeParts::disc(FakeComObject *self)
{
    return static_cast<FakeDisc &>(self->record());
}

QString FakeParts::text(BSTR value)
{
    return QString::fromWCharArray(value, static_cast<int>(SysStringLen(value)));
}

QString FakeParts::nameOf(void *object)
{
    return object ? static_cast<FakeComObject *>(object)->name() : QStringLiteral("null");
}

VARIANT_BOOL FakeParts::boolean(bool value)
{
    return value ? VARIANT_TRUE : VARIANT_FALSE;
}

VARIANT FakeParts::variant(LONG value)
{
    VARIANT made;
    VariantInit(&made);
    made.vt = VT_I4;
    made.lVal = value;
    return made;
}

VARIANT FakeParts::variant(IDispatch *object)
{
    VARIANT made;
    VariantInit(&made);
    made.vt = VT_DISPATCH;
    made.pdispVal = object;
    return made;
}

SAFEARRAY *FakeParts::array(QVector<VARIANT> elements)
{
    SAFEARRAY *made = SafeArrayCreateVector(VT_VARIANT, 0, static_cast<ULONG>(elements.size()));
    for (LONG i = 0; i < elements.size(); ++i)
        SafeArrayPutElement(made, &i, &elements[i]);
    return made;
}

HRESULT FakeParts::answerText(FakeComObject *self, const QString &call, BSTR *to,
                              const QString &value)
{
    const HRESULT result = self->note(call);
    if (SUCCEEDED(result))
        *to = SysAllocStringLen(reinterpret_cast<const OLECHAR *>(value.utf16()),
                                static_cast<UINT>(value.size()));
    return result;
}

} // namespace velmora
