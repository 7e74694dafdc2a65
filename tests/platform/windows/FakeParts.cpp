// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/windows/FakeParts.h"

namespace velmora
{

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
