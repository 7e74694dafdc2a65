// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace velmora
{

/// What the installer noted about the product: "DisplayVersion" and "CurrentVersion" of the
/// product's registry key. Empty where nothing is noted. Any thread.
struct InstalledVersion {
    QString displayVersion;
    QString currentVersion;
};

InstalledVersion readInstalledVersion();

} // namespace velmora
