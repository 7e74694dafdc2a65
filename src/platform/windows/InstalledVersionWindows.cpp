// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/InstalledVersion.h"

#include <QSettings>

namespace velmora
{

InstalledVersion readInstalledVersion()
{
    const QSettings product(QStringLiteral("HKEY_CURRENT_USER\\Software\\Corvel\\Corvel Velmora"),
                            QSettings::NativeFormat);
    return {product.value(QStringLiteral("DisplayVersion")).toString(),
            product.value(QStringLiteral("CurrentVersion")).toString()};
}

} // namespace velmora
