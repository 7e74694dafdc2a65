// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ComApartment.h"

#include "platform/windows/ComResult.h"

#include <objbase.h>

namespace velmora
{

ComApartment::ComApartment()
{
    const HRESULT result = CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    m_initialised = stepSucceeded(result, "CoInitializeEx");
}

ComApartment::~ComApartment()
{
    if (m_initialised)
        CoUninitialize();
}

} // namespace velmora
