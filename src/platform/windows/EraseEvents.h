// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/DiscSession.h"
#include "platform/windows/EventSink.h"
#include "platform/windows/ImapiInterfaces.h"

namespace velmora
{

/// Receives the events of erasing and passes on its elapsed and expected seconds.
class EraseEvents final : public EventSink<DDiscFormat2EraseEvents>
{
public:
    /// @p type describes DDiscFormat2EraseEvents. @p progress is called on the thread of the
    /// events.
    EraseEvents(ComPtr<ITypeInfo> type, DiscProgress progress);

    HRESULT STDMETHODCALLTYPE Update(IDispatch *object, LONG elapsedSeconds,
                                     LONG estimatedTotalSeconds) override;

private:
    const DiscProgress m_progress;
};

} // namespace velmora
