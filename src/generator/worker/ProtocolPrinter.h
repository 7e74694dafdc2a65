// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "generator/pipeline/RenderError.h"

#include <QString>

namespace velmora
{

/// Prints what happens to a render as protocol lines on standard output. Progress and stages that a
/// slow reader does not take are dropped; the result waits for it a while.
namespace ProtocolPrinter
{

void progress(qint64 frame, qint64 count);
void stage(const QString &stage);
// False when nobody reads the result.
bool finished(const QString &fileName);
bool failed(const RenderError &error);
bool cancelled();

} // namespace ProtocolPrinter

} // namespace velmora
