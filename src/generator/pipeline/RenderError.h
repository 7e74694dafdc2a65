// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace velmora
{

/// Why a render ended without a video. The text is plain, names the file and the reason.
struct RenderError {
    QString code; ///< Such as "ERR_INPUT", "ERR_OUTPUT", "ERR_ENCODER", "ERR_DISK_FULL"; empty: none.
    QString text;
    bool isSet() const { return !code.isEmpty(); }
};

} // namespace velmora
