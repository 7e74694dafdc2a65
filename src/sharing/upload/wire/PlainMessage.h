// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace velmora
{

/// What a service says about an error, made fit for a dialog: one line without control characters,
/// cut at 300 letters. May be empty. Any thread.
QString plainMessage(const QString &text);

} // namespace velmora
