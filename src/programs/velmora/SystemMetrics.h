// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace velmora
{

class MetricSender;
struct SystemInfo;

/// Records the description of the machine as one group: "osid" the system, "prcn" processor name
/// and count, "sram" memory in MiB, "tchd" and "laptop" as 0 or 1, "vidv" the video adapter, "scrn"
/// the screen as "%1x%2", "wow64" as 0 or 1 and "dpi".
void recordSystem(MetricSender &sender, const SystemInfo &info);

} // namespace velmora
