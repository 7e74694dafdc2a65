// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace velmora
{

/// The exit codes of the program "transcoder".
namespace TranscoderExit
{

enum Code {
    Done = 0,
    Failed = 1, ///< The music cannot be read or the result cannot be written.
    BadArguments = 2,
    DiskFull = 4, ///< Of the result's folder. Not 3, which a program that aborts has on Windows.
};

} // namespace TranscoderExit

} // namespace velmora
