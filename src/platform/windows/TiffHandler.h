// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImageIOHandler>

#include <memory>

namespace velmora
{

/// One TIFF file; see TiffPlugin. Any thread, one at a time.
class TiffHandler : public QImageIOHandler
{
public:
    TiffHandler();
    ~TiffHandler() override;

    /// Whether the device's next bytes begin a TIFF file; leaves its position.
    static bool isTiff(QIODevice &device);

    bool canRead() const override;
    bool read(QImage *image) override;
    QVariant option(ImageOption option) const override;
    bool supportsOption(ImageOption option) const override;

private:
    struct Source;
    Source &source() const;

    mutable std::unique_ptr<Source> m_source;
};

} // namespace velmora
