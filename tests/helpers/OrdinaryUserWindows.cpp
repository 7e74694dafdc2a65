// SPDX-License-Identifier: GPL-3.0-or-later
#include "helpers/OrdinaryUser.h"

namespace velmora
{

OrdinaryUser::OrdinaryUser() : m_before(0) {}

OrdinaryUser::~OrdinaryUser() = default;

bool OrdinaryUser::isOne() const
{
    return false;
}

} // namespace velmora
