// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/slides/TitleBackground.h"

#include <QLinearGradient>
#include <QPainter>

namespace velmora
{

namespace
{

struct ColorPair {
    QRgb first;
    QRgb last;
};

constexpr int kFirstSolid = 1;
constexpr int kFirstGradient = 18;

/// Solid colours of the backgrounds kFirstSolid to kFirstGradient - 1.
constexpr QRgb kSolids[] = {
    0xffffaec8, 0xff8e51c1, 0xff3f48cc, 0xff00a8f3, 0xff88001b, 0xff8cfffb,
    0xff0ed145, 0xffc4ff0e, 0xfffff200, 0xfffdeca6, 0xffffca18, 0xffff7f27,
    0xffec1c24, 0xff000000, 0xff585858, 0xffc3c3c3, 0xffffffff,
};
static_assert(std::size(kSolids) == kFirstGradient - kFirstSolid);

constexpr ColorPair kGradients[] = {
    {0xffffffff, 0xff000000}, {0xffffae18, 0xffec1c3c}, {0xff8cffed, 0xffffd300},
    {0xff00c4f3, 0xff0ed12e}, {0xff8151c1, 0xff00c4f3}, {0xffec1c3c, 0xff8151c1},
    {0xffffffff, 0xffc3c3c3}, {0xffffffff, 0xffec1c3c}, {0xffffffff, 0xffffae18},
    {0xffffffff, 0xff0ed12e}, {0xffffffff, 0xff3f58cc}, {0xffffffff, 0xff8151c1},
};
static_assert(std::size(kGradients) == kTitleBackgroundCount - kFirstGradient);

/// Text colours that stand out from each background.
constexpr QRgb kCaptionColors[] = {
    0xff000000, 0xffffe7d9, 0xffad4b6a, 0xffdcebff, 0xffdcebff, 0xffbdfffd, 0xffffd0d2, 0xff5370a7,
    0xffc5ffb1, 0xff437414, 0xffd1a12f, 0xff844843, 0xffaf4a05, 0xfffff1ea, 0xffffaeb1, 0xffffaeb1,
    0xffa7a7a7, 0xff000000, 0xffffffff, 0xfffeefea, 0xff41819d, 0xffffffff, 0xffffffff, 0xffffffff,
    0xff000000, 0xfffef1f3, 0xff000000, 0xffffffff, 0xffffffff, 0xffffffff,
};
static_assert(std::size(kCaptionColors) == kTitleBackgroundCount);

void paintOutline(QImage &image)
{
    QPainter painter(&image);
    painter.setPen(Qt::gray);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(0, 0, image.width() - 1, image.height() - 1);
}

void paintGradient(QImage &image, const ColorPair &colors)
{
    QLinearGradient gradient(0, 0, 0, image.height());
    gradient.setColorAt(0, QColor(colors.first));
    gradient.setColorAt(1, QColor(colors.last));
    QPainter painter(&image);
    painter.setPen(Qt::NoPen);
    painter.setBrush(gradient);
    painter.drawRect(image.rect());
}

} // namespace

QImage titleBackground(int index, const QSize &size, bool outline)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    if (image.isNull()) {
        return image;
    }
    image.fill(Qt::transparent);
    if (index < 0 || index >= kTitleBackgroundCount) {
        return image;
    }
    if (index >= kFirstGradient) {
        paintGradient(image, kGradients[index - kFirstGradient]);
    } else if (index >= kFirstSolid) {
        image.fill(QColor(kSolids[index - kFirstSolid]));
    } else {
        image.fill(Qt::white);
        if (outline) {
            paintOutline(image);
        }
    }
    return image;
}

QColor titleCaptionColor(int index)
{
    const bool listed = index >= 0 && index < kTitleBackgroundCount;
    return listed ? QColor(kCaptionColors[index]) : QColor(Qt::black);
}

} // namespace velmora
