// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ImageFormats.h"

namespace velmora
{

// Qt's own plugins read everything here; the program's packages depend on them.
void installImageFormats() {}

} // namespace velmora
