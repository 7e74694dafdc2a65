// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/windows/ComPtr.h"
#include "platform/windows/ImapiInterfaces.h"

namespace velmora
{

/// Where burning takes its COM objects from: the system, or in tests something that records what is
/// done with them. Used within a ComApartment.
class ImapiFactory
{
public:
    ImapiFactory() = default;
    virtual ~ImapiFactory() = default;
    ImapiFactory(const ImapiFactory &) = delete;
    ImapiFactory &operator=(const ImapiFactory &) = delete;

    virtual HRESULT createObject(REFCLSID classId, REFIID interfaceId, void **object);
    /// The type library of the burning service, which describes its events.
    virtual HRESULT loadTypeLibrary(ITypeLib **library);
    /// A stream that reads a file, as SHCreateStreamOnFileEx() makes it.
    virtual HRESULT openFile(const wchar_t *path, DWORD mode, IStream **stream);

    template <typename Class, typename Interface> HRESULT create(ComPtr<Interface> &object)
    {
        return createObject(__uuidof(Class), __uuidof(Interface),
                            reinterpret_cast<void **>(object.ReleaseAndGetAddressOf()));
    }
};

} // namespace velmora
