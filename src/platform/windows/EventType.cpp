// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/windows/EventType.h"

#include "platform/windows/ComResult.h"

#include <oleauto.h>

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

} // namespace velmora
