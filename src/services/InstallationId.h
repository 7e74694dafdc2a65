// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QSettings;

namespace velmora
{

/// The anonymous identifier of this installation: a random number that is made at the first need
/// and kept in @p store.
QString installationId(QSettings &store);

} // namespace velmora
