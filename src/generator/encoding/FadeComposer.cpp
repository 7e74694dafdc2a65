// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/encoding/FadeComposer.h"

#include "generator/encoding/FrameWriter.h"

#include <QImage>

namespace velmora
{

namespace
{

constexpr qint64 kBlackKey = -1;
constexpr qint64 kWhiteKey = -2;

qint64 keyOf(Fade::Layer layer, const QImage &from, const QImage &to)
{
    switch (layer) {
    case Fade::Layer::From:
        return from.cacheKey();
    case Fade::Layer::To:
        return to.cacheKey();
    case Fade::Layer::Black:
        return kBlackKey;
    case Fade::Layer::White:
        break;
    }
    return kWhiteKey;
}

bool makeBlocks(Fade::Layer layer, const QImage &from, const QImage &to, FrameWriter &writer,
                JpegBlocks &blocks, QString *error)
{
    if (layer == Fade::Layer::Black || layer == Fade::Layer::White) {
        blocks = JpegBlocks::ofGrey(to.size(), layer == Fade::Layer::Black ? 0 : 255);
        return true;
    }
    return writer.toBlocks(layer == Fade::Layer::From ? from : to, &blocks, error);
}

} // namespace

const JpegBlocks *FadeComposer::compose(const Fade &fade, const QImage &from, const QImage &to,
                                        FrameWriter &writer, QString *error)
{
    const std::array<Fade::Layer, 2> layers{fade.below, fade.above};
    std::array<const Kept *, 2> parts{};
    for (size_t i = 0; i < 2; ++i) {
        const qint64 key = keyOf(layers[i], from, to);
        parts[i] = find(key, to.size());
        if (parts[i])
            continue;
        // The other layer's blocks stay.
        const Kept *other = i == 0 ? find(keyOf(layers[1], from, to), to.size()) : parts[0];
        Kept &free = other == &m_kept[0] ? m_kept[1] : m_kept[0];
        free.key = 0;
        if (!makeBlocks(layers[i], from, to, writer, free.blocks, error))
            return nullptr;
        free.key = key;
        parts[i] = &free;
    }
    m_frame.mix(parts[0]->blocks, parts[1]->blocks, fade.weight);
    return &m_frame;
}

const FadeComposer::Kept *FadeComposer::find(qint64 key, const QSize &size) const
{
    for (const Kept &kept : m_kept) {
        if (kept.key == key && kept.blocks.size() == size)
            return &kept;
    }
    return nullptr;
}

} // namespace velmora
