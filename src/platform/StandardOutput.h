// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

namespace velmora
{

/// Standard output for a program that another one reads and may stop reading at any time.
namespace StandardOutput
{

/// Gives the standard streams that the program was started without something to go to, so that no
/// file takes their place and receives what is printed. First thing in main().
void ensureOpen();

/// Writes all of @p data without buffering. A reader that is gone yields false, never a signal; one
/// that does not read makes it give up after @p timeout ms (on Windows the wait is not bounded).
/// Given up before the first byte, nothing is written, so lines stay whole while they are shorter
/// than what the system takes in one piece. Any thread, one at a time.
bool write(const QByteArray &data, int timeout);

} // namespace StandardOutput

} // namespace velmora
