// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/encoding/FrameWriter.h"

#include "generator/encoding/JpegBlocks.h"
#include "generator/media/DiskSpace.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QImage>

#include <turbojpeg.h>

namespace velmora
{

namespace
{

constexpr int kQuality = 100;
constexpr int kPixelFormat = Q_BYTE_ORDER == Q_LITTLE_ENDIAN ? TJPF_BGRX : TJPF_XRGB;

QString writeError(const QFile &file, bool diskFull)
{
    if (diskFull)
        return QCoreApplication::translate("velmora::VideoUtil", "The disk is full.");
    return QCoreApplication::translate("velmora::FrameWriter", "%1 cannot be written: %2")
        .arg(QDir::toNativeSeparators(file.fileName()), file.errorString());
}

QString compressionError(const QSize &size)
{
    return QCoreApplication::translate("velmora::FrameWriter",
                                       "A frame of %1x%2 pixels cannot be compressed.")
        .arg(size.width())
        .arg(size.height());
}

} // namespace

struct FrameWriter::Compressor {
    tjhandle handle = tjInitCompress();
    Compressor() = default;
    Compressor(const Compressor &) = delete;
    Compressor &operator=(const Compressor &) = delete;
    ~Compressor()
    {
        if (handle)
            tjDestroy(handle);
    }
};

FrameWriter::FrameWriter() : m_compressor(std::make_unique<Compressor>()) {}
FrameWriter::~FrameWriter() = default;

bool FrameWriter::write(const QImage &frame, const QString &path, QString *error)
{
    unsigned long size = 0;
    m_diskFull = false;
    return compress(frame.convertToFormat(QImage::Format_RGB32), &size, error) &&
           store(path, static_cast<qint64>(size), error);
}

bool FrameWriter::write(const JpegBlocks &frame, const QString &path, QString *error)
{
    const size_t size = frame.write(m_buffer);
    m_diskFull = false;
    if (size > 0)
        return store(path, static_cast<qint64>(size), error);
    *error = compressionError(frame.size());
    return false;
}

bool FrameWriter::toBlocks(const QImage &frame, JpegBlocks *blocks, QString *error)
{
    unsigned long size = 0;
    if (!compress(frame.convertToFormat(QImage::Format_RGB32), &size, error))
        return false;
    if (blocks->read(m_buffer.data(), size))
        return true;
    *error = compressionError(frame.size());
    return false;
}

bool FrameWriter::compress(const QImage &frame, unsigned long *size, QString *error)
{
    const unsigned long bound = tjBufSize(frame.width(), frame.height(), TJSAMP_420);
    if (!frame.isNull() && m_buffer.size() < bound)
        m_buffer.resize(bound);
    *size = static_cast<unsigned long>(m_buffer.size());
    unsigned char *buffer = m_buffer.data();
    const int result = frame.isNull() || !m_compressor->handle
                           ? -1
                           : tjCompress2(m_compressor->handle, frame.constBits(), frame.width(),
                                         frame.bytesPerLine(), frame.height(), kPixelFormat,
                                         &buffer, size, TJSAMP_420, kQuality, TJFLAG_NOREALLOC);
    if (result != 0)
        *error = compressionError(frame.size());
    return result == 0;
}

bool FrameWriter::store(const QString &path, qint64 size, QString *error)
{
    QFile file(path);
    const char *data = reinterpret_cast<const char *>(m_buffer.data());
    if (file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && file.write(data, size) == size)
        return true;
    m_diskFull = failedForSpace(file, size);
    *error = writeError(file, m_diskFull);
    return false;
}

} // namespace velmora
