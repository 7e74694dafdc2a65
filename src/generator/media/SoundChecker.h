// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace velmora
{

/// Why @p path cannot be used as music, in one plain sentence; empty when it can. Decodes the
/// first piece of sound, so a file that only carries the right name does not pass. Any thread;
/// reads the file, so not on the GUI thread.
QString checkSoundFile(const QString &path);

} // namespace velmora
