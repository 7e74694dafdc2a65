// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/windows/ComArray.h"

namespace velmora
{

ComArray::~ComArray()
{
    SafeArrayDestroy(m_array);
}

/// Calls @p take with each element once it is converted to @p type.
template <typename Take> void ComArray::forEach(VARTYPE type, const Take &take) const
{
    VARTYPE elements = VT_EMPTY;
    LONG first = 0;
    LONG last = -1;
    if (!m_array || SafeArrayGetDim(m_array) != 1 ||
        FAILED(SafeArrayGetVartype(m_array, &elements)) || elements != VT_VARIANT ||
        FAILED(SafeArrayGetLBound(m_array, 1, &first)) ||
        FAILED(SafeArrayGetUBound(m_array, 1, &last)))
        return;
    for (LONG i = first; i <= last; ++i) {
        VARIANT element;
        VariantInit(&element);
        if (SUCCEEDED(SafeArrayGetElement(m_array, &i, &element)) &&
            SUCCEEDED(VariantChangeType(&element, &element, 0, type)))
            take(element);
        VariantClear(&element);
    }
}

QStringList ComArray::strings() const
{
    QStringList all;
    forEach(VT_BSTR, [&all](const VARIANT &element) {
        all.append(QString::fromWCharArray(element.bstrVal,
                                           static_cast<int>(SysStringLen(element.bstrVal))));
    });
    return all;
}

QVector<LONG> ComArray::numbers() const
{
    QVector<LONG> all;
    forEach(VT_I4, [&all](const VARIANT &element) { all.append(element.lVal); });
    return all;
}

} // namespace velmora
