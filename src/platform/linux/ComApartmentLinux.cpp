// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ComApartment.h"

namespace velmora
{

ComApartment::ComApartment() = default;

ComApartment::~ComApartment()
{
    Q_UNUSED(m_initialised)
}

} // namespace velmora
