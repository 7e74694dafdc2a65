// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/windows/WriteEvents.h"

#include "platform/PlatformLog.h"

namespace velmora
{

WriteEvents::WriteEvents(ComPtr<ITypeInfo> type, DiscProgress progress)
    : EventSink(std::move(type)), m_progress(std::move(progress))
{
}

HRESULT WriteEvents::Update(IDispatch *, IDispatch *progress)
{
    ComPtr<IDiscFormat2DataEventArgs> arguments;
    if (!progress || FAILED(progress->QueryInterface(
                         __uuidof(IDiscFormat2DataEventArgs),
                         reinterpret_cast<void **>(arguments.ReleaseAndGetAddressOf())))) {
        qCWarning(lcPlatform) << "Getting IDiscFormat2DataEventArgs failed";
        return S_OK;
    }
    LONG elapsed = 0;
    LONG expected = 0;
    if (FAILED(arguments->get_ElapsedTime(&elapsed)) ||
        FAILED(arguments->get_TotalTime(&expected))) {
        qCWarning(lcPlatform) << "Failed get times";
        return S_OK;
    }
    m_progress(static_cast<int>(elapsed), static_cast<int>(expected));
    return S_OK;
}

} // namespace velmora
