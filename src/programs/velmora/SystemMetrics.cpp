// SPDX-License-Identifier: GPL-3.0-or-later
#include "programs/velmora/SystemMetrics.h"

#include "app/AppSettings.h"
#include "platform/SystemInfo.h"
#include "services/MetricSender.h"

namespace velmora
{

void recordSystem(MetricSender &sender, const SystemInfo &info)
{
    const auto flag = [](bool set) { return QString::number(set ? 1 : 0); };
    const QString processor = QStringLiteral("%1 x%2").arg(info.processor).arg(info.processorCount);
    sender.recordGroup({
        {QStringLiteral("osid"), info.osId},
        {QStringLiteral("prcn"), processor},
        {QStringLiteral("sram"), QString::number(info.memoryMb)},
        {QStringLiteral("tchd"), flag(info.touch)},
        {QStringLiteral("vidv"), info.videoAdapter},
        {QStringLiteral("laptop"), flag(info.laptop)},
        {QStringLiteral("scrn"), resolutionToText(info.screen)},
        {QStringLiteral("wow64"), flag(info.emulated32)},
        {QStringLiteral("dpi"), QString::number(info.dpi)},
    });
}

} // namespace velmora
