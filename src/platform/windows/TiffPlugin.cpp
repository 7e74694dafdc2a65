// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/windows/TiffPlugin.h"

#include "platform/windows/TiffHandler.h"

namespace velmora
{

QImageIOPlugin::Capabilities TiffPlugin::capabilities(QIODevice *device,
                                                      const QByteArray &format) const
{
    if (format == "tiff" || format == "tif")
        return CanRead;
    if (format.isEmpty() && device && device->isReadable() && TiffHandler::isTiff(*device))
        return CanRead;
    return {};
}

QImageIOHandler *TiffPlugin::create(QIODevice *device, const QByteArray &format) const
{
    auto *handler = new TiffHandler;
    handler->setDevice(device);
    handler->setFormat(format);
    return handler;
}

} // namespace velmora
