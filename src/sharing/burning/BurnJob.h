// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace velmora
{

/// What goes onto which disc, and how.
struct BurnJob {
    QString recorderId;
    QString video;      ///< Path of the video; it is only read.
    QString fileName;   ///< Its name on the disc.
    QString volumeName; ///< The disc's title.
    bool erase = false;
    bool finalize = false;
};

} // namespace velmora
