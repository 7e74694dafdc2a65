// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/preview/VolumeSetting.h"

#include "app/AppSettings.h"
#include "app/Paths.h"

#include <QSettings>

namespace velmora
{

namespace
{

const QLatin1String kPercent("previewVolume");
const QLatin1String kMuted("previewMuted");

} // namespace

VolumeSetting VolumeSetting::load()
{
    const auto store = openSettings(Paths::settingsFile());
    VolumeSetting setting;
    bool isNumber = false;
    const int percent = store->value(kPercent).toInt(&isNumber);
    if (isNumber && percent >= 0 && percent <= 100)
        setting.percent = percent;
    setting.muted = store->value(kMuted).toBool();
    return setting;
}

void VolumeSetting::save() const
{
    const VolumeSetting stored = load();
    const auto store = openSettings(Paths::settingsFile());
    if (percent != stored.percent)
        store->setValue(kPercent, percent);
    if (muted != stored.muted)
        store->setValue(kMuted, muted);
}

} // namespace velmora
