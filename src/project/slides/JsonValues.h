// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QJsonObject;
class QLatin1String;

namespace velmora
{

/// The integer under @p key: 0 when it is missing or no number, cut towards zero when it has a
/// fraction, and held at the limits of int when it lies outside of them.
int readInt(const QJsonObject &object, QLatin1String key);

} // namespace velmora
