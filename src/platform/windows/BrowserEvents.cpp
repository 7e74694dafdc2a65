// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/windows/BrowserEvents.h"

#include <exdispid.h>

namespace velmora
{

namespace
{

/// The only argument; empty when it is no text.
QString textOf(const DISPPARAMS *parameters)
{
    if (!parameters || parameters->cArgs != 1)
        return {};
    VARIANT text;
    VariantInit(&text);
    QString found;
    if (SUCCEEDED(VariantChangeType(&text, parameters->rgvarg, 0, VT_BSTR)))
        found = QString::fromWCharArray(text.bstrVal, static_cast<int>(SysStringLen(text.bstrVal)));
    VariantClear(&text);
    return found;
}

} // namespace

BrowserEvents::BrowserEvents(Receiver onTitle, Receiver onAddress)
    : EventSink({}), m_onTitle(std::move(onTitle)), m_onAddress(std::move(onAddress))
{
}

HRESULT BrowserEvents::GetTypeInfoCount(UINT *count)
{
    *count = 0;
    return S_OK;
}

HRESULT BrowserEvents::GetTypeInfo(UINT, LCID, ITypeInfo **type)
{
    *type = nullptr;
    return E_NOTIMPL;
}

HRESULT BrowserEvents::GetIDsOfNames(REFIID, LPOLESTR *, UINT, LCID, DISPID *)
{
    return E_NOTIMPL;
}

HRESULT BrowserEvents::Invoke(DISPID member, REFIID, LCID, WORD, DISPPARAMS *parameters, VARIANT *,
                              EXCEPINFO *, UINT *)
{
    if (member == DISPID_TITLECHANGE)
        m_onTitle(textOf(parameters));
    else if (member == DISPID_NAVIGATECOMPLETE)
        m_onAddress(textOf(parameters));
    return S_OK;
}

} // namespace velmora
