// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/windows/EventSink.h"

#include <QString>

#include <functional>

#include <exdisp.h>

namespace velmora
{

/// Receives what the browser control tells about its page, on the thread of the control.
class BrowserEvents : public EventSink<DWebBrowserEvents>
{
public:
    using Receiver = std::function<void(const QString &)>;

    /// @p onTitle gets the page's title whenever it changes ("TitleChange"), @p onAddress the
    /// address of a page that has been reached ("NavigateComplete").
    BrowserEvents(Receiver onTitle, Receiver onAddress);

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT *count) override;
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID, ITypeInfo **type) override;
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR *names, UINT count, LCID,
                                            DISPID *ids) override;
    HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID, LCID, WORD flags,
                                     DISPPARAMS *parameters, VARIANT *result, EXCEPINFO *exception,
                                     UINT *argument) override;

private:
    const Receiver m_onTitle;
    const Receiver m_onAddress;
};

} // namespace velmora
