// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/media/WavWriter.h"

#include "generator/media/DiskSpace.h"
#include "generator/media/PcmConverter.h"

#include <QCoreApplication>
#include <QtEndian>

#include <limits>
#include <utility>

namespace velmora
{

namespace
{

template <typename Number> void append(QByteArray &bytes, Number number)
{
    const Number little = qToLittleEndian(number);
    bytes.append(reinterpret_cast<const char *>(&little), sizeof(little));
}

constexpr quint32 kSizesLength = 28; ///< Of the chunk that can hold the sizes of a large file.
constexpr quint32 kFormLength = 16;  ///< Of the chunk that describes the samples.
constexpr quint32 kUnknownSize = std::numeric_limits<quint32>::max();
constexpr qint64 kLeastRoom = 64 * 1024; ///< Bytes; with less a disk counts as full.
constexpr quint64 kHeaderLength = 12 + 8 + kSizesLength + 8 + kFormLength + 8;

} // namespace

WavWriter::WavWriter(QString path) : m_path(std::move(path)) {}

WavWriter::~WavWriter()
{
    if (m_file.isOpen())
        m_file.remove();
}

QByteArray WavWriter::header(quint64 dataSize)
{
    const quint64 riffSize = kHeaderLength - 8 + dataSize;
    const bool large = riffSize >= kUnknownSize;
    QByteArray bytes(large ? "RF64" : "RIFF");
    append(bytes, large ? kUnknownSize : static_cast<quint32>(riffSize));
    bytes.append("WAVE");
    bytes.append(large ? "ds64" : "JUNK");
    append(bytes, kSizesLength);
    append(bytes, large ? riffSize : quint64(0));
    append(bytes, large ? dataSize : quint64(0));
    append(bytes, large ? dataSize / PcmFormat::kBytesPerFrame : quint64(0));
    append(bytes, quint32(0));
    bytes.append("fmt ");
    append(bytes, kFormLength);
    append(bytes, quint16(1));
    append(bytes, quint16(PcmFormat::kChannels));
    append(bytes, quint32(PcmFormat::kSampleRate));
    append(bytes, quint32(PcmFormat::kSampleRate * PcmFormat::kBytesPerFrame));
    append(bytes, quint16(PcmFormat::kBytesPerFrame));
    append(bytes, quint16(16));
    bytes.append("data");
    append(bytes, large ? kUnknownSize : static_cast<quint32>(dataSize));
    return bytes;
}

bool WavWriter::open()
{
    m_file.setFileName(QStringLiteral("%1.%2.part")
                           .arg(m_path, QString::number(QCoreApplication::applicationPid())));
    return (m_file.open(QIODevice::WriteOnly | QIODevice::Truncate) &&
            m_file.write(header(0)) >= 0) ||
           fail();
}

bool WavWriter::write(const QByteArray &samples)
{
    m_dataSize += samples.size();
    return m_file.write(samples) == samples.size() || fail();
}

bool WavWriter::commit()
{
    const QByteArray bytes = header(static_cast<quint64>(m_dataSize));
    // Flushed before the header is rewritten, so that a full disk shows here.
    if (!m_file.flush() || !m_file.seek(0) || m_file.write(bytes) != bytes.size() ||
        !m_file.flush())
        return fail();
    m_file.close();
    if (QFile::exists(m_path) && !QFile::remove(m_path)) {
        m_errorText = QCoreApplication::translate(
            "velmora::WavWriter", "The older file of that name cannot be replaced.");
        m_file.remove();
        return false;
    }
    if (!m_file.rename(m_path)) {
        fail();
        m_file.remove();
        return false;
    }
    return true;
}

bool WavWriter::fail()
{
    m_diskFull = failedForSpace(m_file, kLeastRoom);
    m_errorText = m_diskFull
                      ? QCoreApplication::translate("velmora::WavWriter", "The disk is full.")
                      : m_file.errorString();
    return false;
}

} // namespace velmora
