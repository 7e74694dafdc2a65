// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/DiscSession.h"
#include "platform/windows/EventSink.h"
#include "platform/windows/ImapiInterfaces.h"

namespace velmora
{

/// Receives the events of a write and passes on its elapsed and expected seconds.
class WriteEvents final : public EventSink<DDiscFormat2DataEvents>
{
public:
    /// @p type describes DDiscFormat2DataEvents. @p progress is called on the thread of the events.
    WriteEvents(ComPtr<ITypeInfo> type, DiscProgress progress);

    HRESULT STDMETHODCALLTYPE Update(IDispatch *object, IDispatch *progress) override;

private:
    const DiscProgress m_progress;
};

} // namespace velmora
