// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ComApartment.h"

#include "platform/PlatformLog.h"

#include <objbase.h>

namespace velmora
{

ComApartment::ComApartment()
{
    const HRESULT result = CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    m_initialised = SUCCEEDED(result);
    if (!m_initialised)
        qCWarning(lcPlatform).noquote() << QStringLiteral("'%1' failed, result: '%2'")
                                               .arg(QStringLiteral("CoInitializeEx"))
                                               .arg(static_cast<quint32>(result), 0, 16);
}

ComApartment::~ComApartment()
{
    if (m_initialised)
        CoUninitialize();
}

} // namespace velmora
