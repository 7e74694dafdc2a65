// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

class QFile;

namespace velmora
{

/// Whether a write to @p file, of @p needed bytes, failed because its disk is full. Not every
/// system says so itself: then the room that is left tells.
bool failedForSpace(const QFile &file, qint64 needed);

} // namespace velmora
