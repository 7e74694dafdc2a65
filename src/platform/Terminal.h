// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace velmora
{

/// The terminal to which standard output goes.
namespace Terminal
{

/// Its width in columns at this moment; 0 when standard output is no terminal on which a line can
/// be written anew.
int columns();

} // namespace Terminal

} // namespace velmora
