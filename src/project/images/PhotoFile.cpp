// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/images/PhotoFile.h"

#include "project/images/Completeness.h"
#include "project/images/DecodingTurn.h"
#include "project/images/ExifReader.h"
#include "project/images/ImageLoader.h"
#include "project/images/JpegCoefficients.h"
#include "project/images/JpegDecoder.h"
#include "project/images/Orientation.h"

#include <QColorSpace>
#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>

namespace velmora
{

namespace
{

// The byte arrays that hold a file for decoding end at 2 GB.
constexpr qint64 kMaximumFileSize = 1800LL * 1024 * 1024;
constexpr int kPaintedBytes = 4; // Of a pixel in either format for painting.

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(ImageLoader)
};

QString notAPicture()
{
    return Texts::tr("is not a picture that can be read");
}

QString damaged()
{
    return Texts::tr("is damaged or incomplete");
}

/// Formats of photos. Others that installed plugins would accept (drawings, icons, plain text
/// formats) are left out: their readers are not made for hostile files.
bool isPhotoFormat(const QByteArray &format)
{
    static const char *const formats[] = {"jpeg", "png", "bmp", "gif", "tiff", "webp"};
    for (const char *known : formats) {
        if (format == known)
            return true;
    }
    return false;
}

/// Whether the structure of the file tells that it reaches to the end of its picture.
bool isComplete(QIODevice &device, const QByteArray &format)
{
    if (format == "jpeg")
        return isCompleteJpeg(device);
    if (format == "png")
        return isCompletePng(device);
    if (format == "bmp")
        return isCompleteBmp(device);
    if (format == "gif")
        return isCompleteGif(device);
    return format == "webp" && isCompleteWebp(device);
}

qint64 pixels(const QSize &size)
{
    return qint64(size.width()) * size.height();
}

/// What a pixel takes while it is decoded to @p format and converted for painting.
int pixelBytes(const QByteArray &file, QImage::Format format)
{
    if (file == "webp") // The decoder has a picture of its own.
        return 2 * kPaintedBytes;
    const int bits = format == QImage::Format_Invalid
                         ? 8 * kPaintedBytes
                         : QImage::toPixelFormat(format).bitsPerPixel();
    const int decoded = (bits + 7) / 8;
    // Pixels of the same or of twice the size are converted where they are.
    return decoded >= kPaintedBytes ? decoded : decoded + kPaintedBytes;
}

/// Takes the picture over, so that the pixels before and after need not both be held.
QImage toPaintingFormat(QImage &&image)
{
    const QImage::Format format =
        image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32;
    QImage result = std::move(image).convertToFormat(format);
    const QColorSpace space = result.colorSpace();
    if (space.isValid() && space != QColorSpace(QColorSpace::SRgb))
        result.convertToColorSpace(QColorSpace(QColorSpace::SRgb));
    return result;
}

} // namespace

PhotoFile::PhotoFile(const QString &path) : m_path(path), m_file(path) {}

bool PhotoFile::fail(const QString &problem, const QString &detail)
{
    m_problem = problem;
    m_detail = detail.isEmpty() ? problem : detail;
    return false;
}

bool PhotoFile::failAsTooLarge()
{
    return fail(Texts::tr("is too large (%1 x %2 pixels)")
                    .arg(m_storedSize.width())
                    .arg(m_storedSize.height()));
}

bool PhotoFile::openFile()
{
    const QFileInfo info(m_path);
    if (!info.exists())
        return fail(Texts::tr("does not exist"));
    if (info.isDir())
        return fail(Texts::tr("is a folder"));
    if (!info.isFile()) // Reading a pipe or a device could block for ever.
        return fail(notAPicture());
    if (!m_file.open(QIODevice::ReadOnly))
        return fail(Texts::tr("cannot be opened"), m_file.errorString());
    if (m_file.size() == 0)
        return fail(Texts::tr("is empty"));
    if (m_file.size() > kMaximumFileSize)
        return fail(Texts::tr("is too large"));
    return true;
}

bool PhotoFile::open()
{
    if (!openFile())
        return false;
    m_reader.setDevice(&m_file);
    m_reader.setDecideFormatFromContent(true);
    m_reader.setAutoTransform(false); // The TIFF reader would turn pictures by itself.
    if (!m_reader.canRead())
        return fail(notAPicture(), m_reader.errorString());
    m_format = m_reader.format();
    if (!isPhotoFormat(m_format))
        return fail(notAPicture());
    m_storedSize = m_reader.size();
    if (m_storedSize.isEmpty())
        return fail(damaged(), m_reader.errorString());
    if (pixels(m_storedSize) > ImageLoader::kMaximumPixels)
        return failAsTooLarge();
    readHeaders();
    return memoryNeeded(QSize()) <= DecodingTurn::kMaximumBytes || failAsTooLarge();
}

void PhotoFile::readHeaders()
{
    if (!isJpeg())
        m_pixelBytes = pixelBytes(m_format, m_reader.imageFormat());
    QFile file(m_path); // Its own handle: the reader has a position in the other one.
    if (!file.open(QIODevice::ReadOnly))
        return;
    m_orientation = ExifReader::read(file).orientation;
    if (isJpeg())
        m_coefficientBytes = jpegCoefficientBytes(file);
}

qint64 PhotoFile::memoryNeeded(const QSize &minimum) const
{
    const QSize stored = storedMinimum(minimum);
    qint64 decoded = pixels(m_storedSize);
    qint64 bytes = decoded * m_pixelBytes;
    if (isJpeg()) {
        decoded = stored.isEmpty() ? 0 : pixels(JpegDecoder::decodedSize(m_storedSize, stored));
        bytes = m_file.size() + m_coefficientBytes + decoded * kPaintedBytes;
    }
    // A picture that is made smaller or turned stands beside the new one.
    const qint64 kept = stored.isEmpty() ? 0 : std::min(decoded, 4 * pixels(stored));
    const bool isTurned = m_orientation > 1;
    const qint64 second = kept < decoded || isTurned ? kept : 0;
    return std::max(bytes, (decoded + second) * kPaintedBytes);
}

QSize PhotoFile::uprightSize() const
{
    return swapsSides(m_orientation) ? m_storedSize.transposed() : m_storedSize;
}

QByteArray PhotoFile::contents()
{
    return m_file.seek(0) ? m_file.readAll() : QByteArray();
}

QSize PhotoFile::storedMinimum(const QSize &minimum) const
{
    const QSize needed = uprightSize().boundedTo(minimum);
    return swapsSides(m_orientation) ? needed.transposed() : needed;
}

QImage PhotoFile::decode(const QSize &minimum)
{
    if (!isJpeg()) {
        QImage image = m_reader.read();
        m_detail = m_reader.errorString();
        return image;
    }
    // The reader could scale, too, but does so roughly and takes every CMYK file for an inverted
    // one.
    const JpegDecoder::Result result = JpegDecoder::decode(contents(), minimum);
    m_detail = result.error;
    return result.image;
}

QImage PhotoFile::read(const QSize &minimum)
{
    const qint64 bytes = memoryNeeded(minimum);
    if (bytes > DecodingTurn::kMaximumBytes) {
        failAsTooLarge();
        return QImage();
    }
    const DecodingTurn turn(bytes);
    const QSize stored = storedMinimum(minimum);
    QImage image = decode(stored);
    if (image.isNull()) {
        fail(damaged(), m_detail);
        return image;
    }
    image = toPaintingFormat(std::move(image));
    if (image.width() > 2 * stored.width() && image.height() > 2 * stored.height())
        image = image.scaled(stored * 2, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    return uprightImage(image, m_orientation);
}

bool PhotoFile::verify()
{
    const DecodingTurn turn(memoryNeeded(QSize()));
    if (isJpeg()) {
        const JpegDecoder::Result result = JpegDecoder::verify(contents());
        return !result.damaged || fail(damaged(), result.error);
    }
    if (m_reader.read().isNull())
        return fail(damaged(), m_reader.errorString());
    // These readers return what they find of a file that ends too early, and call that success.
    const bool mayBeCut = m_format == "bmp" || m_format == "gif";
    return !mayBeCut || isComplete(m_file, m_format) ||
           fail(damaged(), QStringLiteral("The file ends too early"));
}

bool PhotoFile::verifyEnd()
{
    QFile file(m_path); // Its own handle, as in open().
    return (file.open(QIODevice::ReadOnly) && isComplete(file, m_format)) || verify();
}

} // namespace velmora
