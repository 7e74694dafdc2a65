// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/MachineInfo.h"

#include "platform/linux/SystemFiles.h"

#include <QString>

namespace velmora
{

void readMachineInfo(SystemInfo &info)
{
    readSystemFiles(info, QString());
}

} // namespace velmora
