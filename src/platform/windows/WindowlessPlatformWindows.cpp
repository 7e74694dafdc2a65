// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/WindowlessPlatform.h"

#include <QByteArray>

namespace velmora
{

void chooseWindowlessPlatform()
{
    // "offscreen" does not find the fonts of Windows, and every session of Windows has a desktop.
    qputenv("QT_QPA_PLATFORM", QByteArrayLiteral("windows"));
}

} // namespace velmora
