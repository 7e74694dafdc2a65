// SPDX-License-Identifier: GPL-3.0-or-later
#include "helpers/OrdinaryUser.h"

#include <QtGlobal>

#include <unistd.h>

namespace velmora
{

namespace
{
constexpr uid_t kNobody = 65534;
}

OrdinaryUser::OrdinaryUser() : m_before(geteuid())
{
    if (m_before == 0 && seteuid(kNobody) != 0)
        qWarning("The user cannot be changed.");
}

OrdinaryUser::~OrdinaryUser()
{
    if (seteuid(m_before) != 0)
        qFatal("The user cannot be changed back.");
}

bool OrdinaryUser::isOne() const
{
    return geteuid() != 0;
}

} // namespace velmora
