// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/DiscWriter.h"

#include <cstdint>

namespace velmora
{

class BurnDrive;

/// What lies in a drive, and where a new session goes.
struct DiscContent {
    DiscMedia media;
    bool overwritable = false;
    bool readable = false;        ///< There is an ISO 9660 file system.
    std::uint32_t oldSession = 0; ///< Block where the last session starts, when readable.
    std::uint32_t newSession = 0; ///< Block where the next one starts.
    QString status;               ///< One word for the log.
};

/// Looks at the disc in @p drive.
DiscContent examineDisc(BurnDrive &drive);

/// What finalising leaves in the descriptor's field for applications, where the disc itself cannot
/// be closed: rewritable discs that need no erasing, and files.
constexpr char kFinalizedMark[] = "VELMORA FINALIZED";

} // namespace velmora
