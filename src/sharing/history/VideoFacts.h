// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QString>

namespace velmora
{

/// What the file of a video says about itself.
struct VideoFacts {
    bool known = false; ///< The file was looked for.
    bool exists = false;
    QDateTime date;       ///< When it was made.
    qint64 size = 0;      ///< Bytes.
    qint64 duration = -1; ///< ms; -1 as long as the file was not opened.

    /// Looks for the file without opening it. Any thread; may block on a slow disk.
    static VideoFacts look(const QString &fileName);
};

} // namespace velmora
