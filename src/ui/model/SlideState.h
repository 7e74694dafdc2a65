// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "project/slides/CaptionStyle.h"

#include <QString>

namespace velmora
{

class ProjectItem;

/// Everything that can be edited in a slide of either kind. Plain value; fields that a kind does
/// not have keep their defaults.
struct SlideState {
    CaptionStyle caption;
    int time = 0;  ///< s
    int angle = 0; ///< degrees
    QString fileName;
    int transition = 0;
    int backgroundIndex = 0;
    bool visible = true;

    static SlideState of(const ProjectItem &slide);
    void applyTo(ProjectItem &slide) const;

    friend bool operator==(const SlideState &a, const SlideState &b)
    {
        return a.caption == b.caption && a.time == b.time && a.angle == b.angle &&
               a.fileName == b.fileName && a.transition == b.transition &&
               a.backgroundIndex == b.backgroundIndex && a.visible == b.visible;
    }
};

} // namespace velmora
