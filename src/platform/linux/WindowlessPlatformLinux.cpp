// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/WindowlessPlatform.h"

#include <QByteArray>

namespace velmora
{

void chooseWindowlessPlatform()
{
    qputenv("QT_QPA_PLATFORM", QByteArrayLiteral("offscreen"));
}

} // namespace velmora
