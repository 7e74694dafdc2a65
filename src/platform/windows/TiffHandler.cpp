// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/windows/TiffHandler.h"

#include "platform/ComApartment.h"
#include "platform/PlatformLog.h"

#include <QImage>
#include <QVariant>

#include <windows.h>

#include <objbase.h>
#include <shlwapi.h>
#include <wincodec.h>

namespace velmora
{

namespace
{

/// Owns one reference to a COM object.
template <typename T> class Com
{
public:
    Com() = default;
    ~Com()
    {
        if (m_object)
            m_object->Release();
    }
    Com(const Com &) = delete;
    Com &operator=(const Com &) = delete;
    T **receive() { return &m_object; }
    T *operator->() const { return m_object; }
    operator T *() const { return m_object; }

private:
    T *m_object = nullptr;
};

} // namespace

struct TiffHandler::Source {
    explicit Source(QIODevice *device)
    {
        const QByteArray data = device ? device->readAll() : QByteArray();
        *stream.receive() = SHCreateMemStream(reinterpret_cast<const BYTE *>(data.constData()),
                                              static_cast<UINT>(data.size()));
        const HRESULT result = stream ? open() : E_OUTOFMEMORY;
        if (FAILED(result))
            warn("Opening a TIFF", result);
    }

    HRESULT open()
    {
        HRESULT result =
            CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER,
                             IID_IWICImagingFactory, reinterpret_cast<void **>(factory.receive()));
        Com<IWICBitmapDecoder> decoder;
        if (SUCCEEDED(result))
            result = factory->CreateDecoderFromStream(
                stream, nullptr, WICDecodeMetadataCacheOnDemand, decoder.receive());
        if (SUCCEEDED(result))
            result = decoder->GetFrame(0, frame.receive());
        UINT width = 0;
        UINT height = 0;
        if (SUCCEEDED(result))
            result = frame->GetSize(&width, &height);
        if (SUCCEEDED(result))
            size = QSize(static_cast<int>(width), static_cast<int>(height));
        return result;
    }

    HRESULT copyTo(QImage &image)
    {
        Com<IWICFormatConverter> converter;
        HRESULT result = factory->CreateFormatConverter(converter.receive());
        if (SUCCEEDED(result))
            result =
                converter->Initialize(frame, GUID_WICPixelFormat32bppBGRA, WICBitmapDitherTypeNone,
                                      nullptr, 0.0, WICBitmapPaletteTypeCustom);
        if (SUCCEEDED(result))
            result = converter->CopyPixels(nullptr, static_cast<UINT>(image.bytesPerLine()),
                                           static_cast<UINT>(image.sizeInBytes()), image.bits());
        return result;
    }

    static void warn(const char *step, HRESULT result)
    {
        qCWarning(lcPlatform).noquote()
            << QStringLiteral("'%1' failed, result: '%2'")
                   .arg(QLatin1String(step), QString::number(static_cast<quint32>(result), 16));
    }

    ComApartment apartment; ///< First, so that it outlives the objects.
    Com<IStream> stream;
    Com<IWICImagingFactory> factory;
    Com<IWICBitmapFrameDecode> frame;
    QSize size; ///< px; empty when the file cannot be read
};

TiffHandler::TiffHandler() = default;
TiffHandler::~TiffHandler() = default;

TiffHandler::Source &TiffHandler::source() const
{
    if (!m_source)
        m_source = std::make_unique<Source>(device());
    return *m_source;
}

bool TiffHandler::isTiff(QIODevice &device)
{
    // TIFF revision 6.0, section 2: byte order, then 42.
    const QByteArray head = device.peek(4);
    return head == QByteArray("II\x2a\0", 4) || head == QByteArray("MM\0\x2a", 4);
}

bool TiffHandler::canRead() const
{
    const bool readable = m_source ? !m_source->size.isEmpty() : device() && isTiff(*device());
    if (readable)
        setFormat("tiff"); // Nobody told it where the content decides.
    return readable;
}

bool TiffHandler::read(QImage *image)
{
    Source &file = source();
    if (file.size.isEmpty())
        return false;
    QImage picture(file.size, QImage::Format_ARGB32);
    if (picture.isNull())
        return false;
    const HRESULT result = file.copyTo(picture);
    if (FAILED(result)) {
        Source::warn("Decoding a TIFF", result);
        return false;
    }
    *image = picture;
    return true;
}

QVariant TiffHandler::option(ImageOption option) const
{
    return option == Size && !source().size.isEmpty() ? QVariant(source().size) : QVariant();
}

bool TiffHandler::supportsOption(ImageOption option) const
{
    return option == Size;
}

} // namespace velmora
