// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <memory>
#include <vector>

class QFile;
class QImage;

namespace velmora
{

class JpegBlocks;

/// Saves frames as JPEG files of quality 100. Keeps its compressor and its buffer from frame to
/// frame; one object per thread.
class FrameWriter
{
public:
    FrameWriter();
    ~FrameWriter();
    FrameWriter(const FrameWriter &) = delete;
    FrameWriter &operator=(const FrameWriter &) = delete;

    /// Replaces @p path. False with a plain reason in @p error ("The disk is full."); the file may
    /// then be incomplete.
    bool write(const QImage &frame, const QString &path, QString *error);
    bool write(const JpegBlocks &frame, const QString &path, QString *error);
    /// Whether the last write() found no room.
    bool isDiskFull() const { return m_diskFull; }
    /// The blocks of the file that write() would make of @p frame.
    bool toBlocks(const QImage &frame, JpegBlocks *blocks, QString *error);

private:
    struct Compressor;

    bool compress(const QImage &frame, unsigned long *size, QString *error);
    bool store(const QString &path, qint64 size, QString *error);

    std::unique_ptr<Compressor> m_compressor;
    std::vector<unsigned char> m_buffer;
    bool m_diskFull = false;
};

} // namespace velmora
