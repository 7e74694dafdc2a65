// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace velmora
{

/// How loud the preview was left, kept in the settings file. Plain value.
struct VolumeSetting {
    int percent = 80;
    bool muted = false;

    /// Unusable values take their defaults.
    static VolumeSetting load();
    /// Writes only what differs from what is stored.
    void save() const;
};

} // namespace velmora
