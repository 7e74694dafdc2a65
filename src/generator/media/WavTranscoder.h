// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>
#include <QString>

namespace velmora
{

class WavWriter;

/// Decodes the first sound stream of a file of any format into a WAV file of PcmFormat, in this
/// process and with little memory. Blocks for as long as that takes. One thread.
class WavTranscoder
{
    Q_DECLARE_TR_FUNCTIONS(velmora::WavTranscoder)
public:
    /// What could be decoded of @p from is written to @p to. False with errorText() when that is
    /// nothing, or when @p to cannot be written; an older @p to is then untouched.
    bool transcode(const QString &from, const QString &to);
    /// Names the file and the reason.
    const QString &errorText() const { return m_errorText; }
    /// Whether transcode() failed for want of room for @p to.
    bool isDiskFull() const { return m_diskFull; }
    /// Damaged pieces that were left out of the result.
    int damagedCount() const { return m_damagedCount; }

private:
    bool failToWrite(const QString &to, const WavWriter &writer);
    bool fail(const QString &reason);

    QString m_errorText;
    bool m_diskFull = false;
    int m_damagedCount = 0;
};

} // namespace velmora
