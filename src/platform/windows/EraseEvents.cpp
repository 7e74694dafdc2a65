// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/windows/EraseEvents.h"

namespace velmora
{

EraseEvents::EraseEvents(ComPtr<ITypeInfo> type, DiscProgress progress)
    : EventSink(std::move(type)), m_progress(std::move(progress))
{
}

HRESULT EraseEvents::Update(IDispatch *, LONG elapsedSeconds, LONG estimatedTotalSeconds)
{
    m_progress(static_cast<int>(elapsedSeconds), static_cast<int>(estimatedTotalSeconds));
    return S_OK;
}

} // namespace velmora
