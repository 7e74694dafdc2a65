// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/windows/ComPtr.h"

#include <oleauto.h>

#include <atomic>
#include <utility>

namespace velmora
{

/// What all receivers of events have in common: the object is counted, and calls by name arrive at
/// the functions of the interface @p Events, which @p type describes.
template <typename Events> class EventSink : public Events
{
public:
    explicit EventSink(ComPtr<ITypeInfo> type) : m_type(std::move(type)) {}
    EventSink(const EventSink &) = delete;
    EventSink &operator=(const EventSink &) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void **object) override
    {
        const bool known =
            id == __uuidof(IUnknown) || id == __uuidof(IDispatch) || id == __uuidof(Events);
        *object = known ? static_cast<Events *>(this) : nullptr;
        if (known)
            AddRef();
        return known ? S_OK : E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++m_references; }
    ULONG STDMETHODCALLTYPE Release() override
    {
        const ULONG left = --m_references;
        if (left == 0)
            delete this;
        return left;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT *count) override
    {
        *count = 1;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID, ITypeInfo **type) override
    {
        return index == 0 ? m_type.CopyTo(type) : DISP_E_BADINDEX;
    }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR *names, UINT count, LCID,
                                            DISPID *ids) override
    {
        return DispGetIDsOfNames(m_type.Get(), names, count, ids);
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID, LCID, WORD flags,
                                     DISPPARAMS *parameters, VARIANT *result, EXCEPINFO *exception,
                                     UINT *argument) override
    {
        return DispInvoke(static_cast<Events *>(this), m_type.Get(), member, flags, parameters,
                          result, exception, argument);
    }

protected:
    virtual ~EventSink() = default;

private:
    ComPtr<ITypeInfo> m_type;
    std::atomic<ULONG> m_references{1};
};

} // namespace velmora
