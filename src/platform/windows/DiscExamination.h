// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/DiscWriter.h"
#include "platform/windows/ImapiFactory.h"

namespace velmora
{

/// Looks at the disc in a drive. What fails is logged and counts as a "no".
DiscMedia examineDisc(ImapiFactory &factory, IDiscRecorder2 *recorder);

/// Takes the files that are on the disc into @p image, so that they stay when it is written. Logs
/// why it cannot.
bool importFileSystem(IDiscFormat2Data *data, IFileSystemImage *image);

} // namespace velmora
