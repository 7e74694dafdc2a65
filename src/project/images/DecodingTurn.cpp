// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/images/DecodingTurn.h"

namespace velmora
{

namespace
{

constexpr qint64 kMuch = 64LL * 1000 * 1000; // bytes

std::mutex &turnMutex()
{
    static std::mutex mutex;
    return mutex;
}

} // namespace

DecodingTurn::DecodingTurn(qint64 bytes) : m_lock(turnMutex(), std::defer_lock)
{
    if (bytes > kMuch)
        m_lock.lock();
}

} // namespace velmora
