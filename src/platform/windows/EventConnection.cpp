// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/windows/EventConnection.h"

#include "platform/windows/ComResult.h"

namespace velmora
{

ComPtr<ITypeInfo> eventType(ImapiFactory &factory, REFIID events, const char *name)
{
    ComPtr<ITypeLib> library;
    if (!succeeded(factory.loadTypeLibrary(library.ReleaseAndGetAddressOf()),
                   "LoadRegTypeLib LIBID_IMAPILib2 failed, result: '%1'"))
        return {};
    ComPtr<ITypeInfo> type;
    const QByteArray failure =
        QByteArrayLiteral("GetTypeInfoOfGuid IID_") + name + " failed, result: '%1'";
    if (!succeeded(library->GetTypeInfoOfGuid(events, type.ReleaseAndGetAddressOf()),
                   failure.constData()))
        return {};
    return type;
}

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
