// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "project/documents/AudioItemList.h"

namespace velmora
{

class ProjectFile;
class VideoUtil;

/// Everything that a project says about its sound. Plain value, so that it can be taken along to
/// another thread and compared.
struct ProjectSound {
    AudioItemList list;
    int fade = 0; ///< s
    bool loop = false;

    static ProjectSound of(const ProjectFile &project);
    bool isEmpty() const { return list.items.isEmpty(); }

    /// Makes the sound track of a video of @p length ms below the context's cache folder; converted
    /// music goes to @p folder. Returns the track's path, empty with util.errorText() on failure.
    /// Runs programs and waits for them; any thread.
    QString prepare(VideoUtil &util, const QString &folder, qint64 length) const;

    friend bool operator==(const ProjectSound &a, const ProjectSound &b)
    {
        return a.list.items == b.list.items && a.list.offset == b.list.offset && a.fade == b.fade &&
               a.loop == b.loop;
    }
};

} // namespace velmora
