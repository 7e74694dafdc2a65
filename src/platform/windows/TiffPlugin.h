// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImageIOPlugin>

namespace velmora
{

/// Reads the first picture of TIFF files through the Windows Imaging Component, in 8 bits a
/// channel.
class TiffPlugin : public QImageIOPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QImageIOHandlerFactoryInterface_iid FILE "TiffPlugin.json")
public:
    Capabilities capabilities(QIODevice *device, const QByteArray &format) const override;
    QImageIOHandler *create(QIODevice *device, const QByteArray &format) const override;
};

} // namespace velmora
