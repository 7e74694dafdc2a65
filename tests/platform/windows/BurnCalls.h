// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

namespace velmora
{

/// The calls of a burn of "holiday.mp4" as "film.mp4" on a disc "Sommer 2026", in order, as the
/// service's documentation asks for them and as FakeImapi notes them.
QStringList burnCalls(bool erase, bool blank);

/// Those of a burn that ends because the medium does not suit.
QStringList checkCalls();

} // namespace velmora
