// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/windows/EventConnection.h"

#include "platform/windows/ComResult.h"

namespace velmora
{

EventConnection::EventConnection(IUnknown *source, REFIID events, IUnknown *sink)
{
    ComPtr<IConnectionPointContainer> container;
    ComPtr<IConnectionPoint> point;
    if (sink &&
        succeeded(
            source->QueryInterface(__uuidof(IConnectionPointContainer),
                                   reinterpret_cast<void **>(container.ReleaseAndGetAddressOf())),
            "QueryInterface IID_IConnectionPointContainer failed, result: '%1'") &&
        succeeded(container->FindConnectionPoint(events, point.ReleaseAndGetAddressOf()),
                  "FindConnectionPoint failed, result: '%1'") &&
        succeeded(point->Advise(sink, &m_cookie), "Advise failed, result: '%1'"))
        m_point = std::move(point);
}

EventConnection::~EventConnection()
{
    if (m_point)
        m_point->Unadvise(m_cookie);
}

} // namespace velmora
