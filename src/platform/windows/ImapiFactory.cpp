// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/windows/ImapiFactory.h"

#include <objbase.h>
#include <oleauto.h>
#include <shlwapi.h>

namespace velmora
{

HRESULT ImapiFactory::createObject(REFCLSID classId, REFIID interfaceId, void **object)
{
    return CoCreateInstance(classId, nullptr, CLSCTX_ALL, interfaceId, object);
}

HRESULT ImapiFactory::loadTypeLibrary(ITypeLib **library)
{
    return LoadRegTypeLib(LIBID_IMAPILib2, 1, 0, LOCALE_NEUTRAL, library);
}

HRESULT ImapiFactory::openFile(const wchar_t *path, DWORD mode, IStream **stream)
{
    return SHCreateStreamOnFileEx(path, mode, FILE_ATTRIBUTE_NORMAL, FALSE, nullptr, stream);
}

} // namespace velmora
