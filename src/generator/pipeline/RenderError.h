// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMetaType>
#include <QString>

namespace velmora
{

/// Why a render ended without a video. The text is plain, names the file and the reason.
struct RenderError {
    QString code; ///< One of RenderErrorCode; empty: none.
    QString text;
    bool isSet() const { return !code.isEmpty(); }
};

/// The codes that a RenderError carries.
namespace RenderErrorCode
{

inline const QLatin1String kInput("ERR_INPUT");        ///< A photo or sound file is unusable.
inline const QLatin1String kOutput("ERR_OUTPUT");      ///< The output file cannot be written.
inline const QLatin1String kEncoder("ERR_ENCODER");    ///< FFmpeg is missing or failed.
inline const QLatin1String kDiskFull("ERR_DISK_FULL"); ///< Of the cache or of the output.
inline const QLatin1String kCache("ERR_CACHE");        ///< No cache folder can be made.
inline const QLatin1String kBusy("ERR_BUSY");          ///< Another render writes the same output.
inline const QLatin1String kRequest("ERR_REQUEST");    ///< The project cannot be rendered at all.

} // namespace RenderErrorCode

} // namespace velmora

Q_DECLARE_METATYPE(velmora::RenderError)
