// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/PlatformLog.h"
#include "platform/null/NullDiscWriter.h"

namespace velmora
{

std::unique_ptr<DiscWriter> createDiscWriter()
{
    qCWarning(lcPlatform)
        << "The disc burning service of Windows is not used; no drives are offered";
    return std::make_unique<NullDiscWriter>();
}

} // namespace velmora
