// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ImageFormats.h"

#include <QImageReader>
#include <QtPlugin>

// Outside of any namespace, as the macro asks.
Q_IMPORT_PLUGIN(TiffPlugin)

namespace velmora
{

// The import above registers the plugin when the program loads; the reference to this function is
// what links it in.
void installImageFormats() {}

} // namespace velmora
