// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QSettings;

namespace velmora
{

class MetricSender;
class ServicesConfig;

/// Switches @p sender on when "metrics/address" is configured and the user has @p agreed
/// (AppSettings::sendStatistics); "metrics/batch" is the batch limit.
/// Every query then opens with the program's version and an anonymous installation identifier, a
/// random number that is made at the first need and kept in @p store.
void setUpMetrics(MetricSender &sender, const ServicesConfig &services, bool agreed,
                  QSettings &store);

} // namespace velmora
