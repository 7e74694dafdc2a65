// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/images/JpegDecoder.h"

#include "project/images/ImageLoader.h"

#include <QColorSpace>
#include <QVector>

#include <csetjmp>
#include <cstdio>
#include <cstdlib>

// After <cstdio>: the library's headers use FILE and size_t without including them.
#include <jpeglib.h>

// After <jpeglib.h>: the numbers of the messages depend on the interface's version.
#include <jerror.h>

namespace velmora
{

namespace
{

// A real progressive photo has about ten scans. Files with thousands exist only to keep decoders
// busy for minutes.
constexpr int kMaximumScans = 200;
constexpr int kMaximumDenominator = 8;

struct ErrorManager {
    jpeg_error_mgr base;
    std::jmp_buf jump;
    bool damaged;
    bool endMissing;
    char text[JMSG_LENGTH_MAX];
};

ErrorManager *errorsOf(j_common_ptr info)
{
    return reinterpret_cast<ErrorManager *>(info->err);
}

void keepText(j_common_ptr info)
{
    ErrorManager *errors = errorsOf(info);
    if (errors->text[0] == '\0')
        errors->base.format_message(info, errors->text);
}

[[noreturn]] void onError(j_common_ptr info)
{
    keepText(info);
    std::longjmp(errorsOf(info)->jump, 1);
}

void onMessage(j_common_ptr info, int level)
{
    if (level >= 0)
        return;
    ErrorManager *errors = errorsOf(info);
    switch (errors->base.msg_code) {
    case JWRN_JPEG_EOF:
        errors->endMissing = true;
        break;
    case JWRN_HIT_MARKER:
    case JWRN_HUFF_BAD_CODE:
    case JWRN_MUST_RESYNC:
        errors->damaged = true;
        break;
    default: // Oddities of cameras and editors, which every viewer shows without complaint.
        return;
    }
    keepText(info);
}

void ignoreOutput(j_common_ptr) {}

void onProgress(j_common_ptr info)
{
    const auto *decompressor = reinterpret_cast<j_decompress_ptr>(info);
    if (decompressor->input_scan_number > kMaximumScans)
        ERREXIT(info, JERR_BAD_PROGRESSION);
}

/// One decoding run. Every function that calls the library sets the jump target first and keeps
/// its state in members, which survive the jump.
class Decompressor
{
public:
    explicit Decompressor(const QByteArray &bytes);
    ~Decompressor() { jpeg_destroy_decompress(&m_info); }
    Decompressor(const Decompressor &) = delete;
    Decompressor &operator=(const Decompressor &) = delete;

    bool readHeader();
    QSize size() const { return QSize(int(m_info.image_width), int(m_info.image_height)); }
    bool start(int denominator);
    bool readInto(QImage &image);
    bool skipAll();
    QColorSpace colorSpace();
    bool isCmyk() const { return m_info.out_color_space == JCS_CMYK; }
    bool isGrey() const { return m_info.out_color_space == JCS_GRAYSCALE; }
    QSize outputSize() const { return QSize(int(m_info.output_width), int(m_info.output_height)); }
    bool isDamaged();
    QString error() const { return QString::fromLatin1(m_errors.text); }

private:
    void readCmykRow(uchar *target);

    const QByteArray &m_bytes;
    jpeg_decompress_struct m_info;
    jpeg_progress_mgr m_progress;
    ErrorManager m_errors;
    QVector<uchar> m_row;
};

Decompressor::Decompressor(const QByteArray &bytes)
    : m_bytes(bytes), m_info(), m_progress(), m_errors()
{
    m_info.err = jpeg_std_error(&m_errors.base);
    m_errors.base.error_exit = onError;
    m_errors.base.emit_message = onMessage;
    m_errors.base.output_message = ignoreOutput;
    m_progress.progress_monitor = onProgress;
}

bool Decompressor::readHeader()
{
    if (setjmp(m_errors.jump))
        return false;
    jpeg_create_decompress(&m_info);
    m_info.progress = &m_progress;
    jpeg_mem_src(&m_info, reinterpret_cast<const uchar *>(m_bytes.constData()),
                 static_cast<unsigned long>(m_bytes.size()));
    jpeg_save_markers(&m_info, JPEG_APP0 + 2, 0xffff);
    return jpeg_read_header(&m_info, TRUE) == JPEG_HEADER_OK;
}

bool Decompressor::start(int denominator)
{
    if (setjmp(m_errors.jump))
        return false;
    m_info.scale_num = 1;
    m_info.scale_denom = static_cast<unsigned>(denominator);
    switch (m_info.jpeg_color_space) {
    case JCS_GRAYSCALE:
        m_info.out_color_space = JCS_GRAYSCALE;
        break;
    case JCS_CMYK:
    case JCS_YCCK:
        m_info.out_color_space = JCS_CMYK;
        break;
    default:
        m_info.out_color_space = Q_BYTE_ORDER == Q_LITTLE_ENDIAN ? JCS_EXT_BGRX : JCS_EXT_XRGB;
        break;
    }
    return jpeg_start_decompress(&m_info);
}

bool Decompressor::readInto(QImage &image)
{
    m_row.resize(isCmyk() ? int(m_info.output_width) * 4 : 0);
    if (setjmp(m_errors.jump))
        return false;
    while (m_info.output_scanline < m_info.output_height) {
        uchar *row = image.scanLine(int(m_info.output_scanline));
        if (isCmyk())
            readCmykRow(row);
        else
            jpeg_read_scanlines(&m_info, &row, 1);
    }
    return true;
}

void Decompressor::readCmykRow(uchar *target)
{
    uchar *row = m_row.data();
    jpeg_read_scanlines(&m_info, &row, 1);
    // Adobe's programs store the amounts of ink inverted, and mark their files.
    const int flip = m_info.saw_Adobe_marker ? 0 : 255;
    auto *pixels = reinterpret_cast<QRgb *>(target);
    for (unsigned x = 0; x < m_info.output_width; ++x, row += 4) {
        const int light = row[3] ^ flip;
        pixels[x] = qRgb((row[0] ^ flip) * light / 255, (row[1] ^ flip) * light / 255,
                         (row[2] ^ flip) * light / 255);
    }
}

bool Decompressor::skipAll()
{
    m_row.resize(int(m_info.output_width) * m_info.output_components);
    if (setjmp(m_errors.jump))
        return false;
    while (m_info.output_scanline < m_info.output_height) {
        uchar *row = m_row.data();
        jpeg_read_scanlines(&m_info, &row, 1);
    }
    return true;
}

QColorSpace Decompressor::colorSpace()
{
    JOCTET *data = nullptr;
    unsigned size = 0;
    if (setjmp(m_errors.jump))
        return QColorSpace();
    if (isCmyk() || isGrey() || !jpeg_read_icc_profile(&m_info, &data, &size))
        return QColorSpace();
    const QByteArray profile(reinterpret_cast<const char *>(data), int(size));
    std::free(data);
    return QColorSpace::fromIccProfile(profile);
}

bool Decompressor::isDamaged()
{
    if (setjmp(m_errors.jump))
        return true;
    // A single scan that was decoded to its last block is complete, even where the end marker has
    // been lost. With several scans the missing ones leave no other trace than the missing end.
    return m_errors.damaged || (m_errors.endMissing && jpeg_has_multiple_scans(&m_info));
}

QSize dividedBy(const QSize &size, int denominator)
{
    return QSize((size.width() + denominator - 1) / denominator,
                 (size.height() + denominator - 1) / denominator);
}

int denominatorFor(const QSize &size, const QSize &minimum)
{
    int denominator = kMaximumDenominator;
    while (denominator > 1 &&
           dividedBy(size, denominator).expandedTo(minimum) != dividedBy(size, denominator))
        denominator /= 2;
    return denominator;
}

bool isDecodable(const QSize &size)
{
    return qint64(size.width()) * size.height() <= ImageLoader::kMaximumPixels;
}

} // namespace

QSize JpegDecoder::decodedSize(const QSize &size, const QSize &minimum)
{
    return dividedBy(size, denominatorFor(size, minimum));
}

JpegDecoder::Result JpegDecoder::decode(const QByteArray &bytes, const QSize &minimum)
{
    Result result;
    Decompressor decompressor(bytes);
    if (decompressor.readHeader() && isDecodable(decompressor.size()) &&
        decompressor.start(denominatorFor(decompressor.size(), minimum))) {
        QImage image(decompressor.outputSize(),
                     decompressor.isGrey() ? QImage::Format_Grayscale8 : QImage::Format_RGB32);
        if (!image.isNull() && decompressor.readInto(image)) {
            image.setColorSpace(decompressor.colorSpace());
            result.image = image;
        }
    }
    result.damaged = result.image.isNull() || decompressor.isDamaged();
    result.error = decompressor.error();
    return result;
}

JpegDecoder::Result JpegDecoder::verify(const QByteArray &bytes)
{
    Result result;
    Decompressor decompressor(bytes);
    const bool readable = decompressor.readHeader() && isDecodable(decompressor.size()) &&
                          decompressor.start(kMaximumDenominator) && decompressor.skipAll();
    result.damaged = !readable || decompressor.isDamaged();
    result.error = decompressor.error();
    return result;
}

} // namespace velmora
