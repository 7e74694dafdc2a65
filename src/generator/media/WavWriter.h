// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

namespace velmora
{

/// Writes a WAV file of PcmFormat under a temporary name in the target's folder; commit() gives it
/// its name, and without commit() nothing is left. Beyond 4 GB it becomes an RF64 file, the form
/// that WAV readers know for large files. One thread.
class WavWriter
{
public:
    explicit WavWriter(QString path);
    ~WavWriter();
    WavWriter(const WavWriter &) = delete;
    WavWriter &operator=(const WavWriter &) = delete;

    bool open();
    bool write(const QByteArray &samples);
    /// Completes the header and puts the file in place of an older one of that name.
    bool commit();
    qint64 dataSize() const { return m_dataSize; } ///< bytes
    const QString &errorText() const { return m_errorText; }
    bool isDiskFull() const { return m_diskFull; } ///< Whether that is why the last step failed.

    /// The header of a file with @p dataSize bytes of samples; its length is always the same.
    static QByteArray header(quint64 dataSize);

private:
    bool fail();

    QString m_path;
    QFile m_file;
    qint64 m_dataSize = 0;
    QString m_errorText;
    bool m_diskFull = false;
};

} // namespace velmora
