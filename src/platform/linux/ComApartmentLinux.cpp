// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ComApartment.h"

namespace velmora
{

ComApartment::ComApartment() = default;

ComApartment::~ComApartment() = default;

} // namespace velmora
