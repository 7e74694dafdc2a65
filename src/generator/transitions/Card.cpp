// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/transitions/Card.h"

#include "generator/transitions/CardSampler.h"
#include "generator/transitions/Easing.h"
#include "generator/transitions/ReducedPicture.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace velmora
{

namespace
{

std::array<QPointF, 4> cornersOf(const Card &card)
{
    const double width = card.picture.width;
    const double height = card.picture.height;
    return {card.placement.map(QPointF(0, 0)), card.placement.map(QPointF(width, 0)),
            card.placement.map(QPointF(width, height)), card.placement.map(QPointF(0, height))};
}

double length(const QPointF &way)
{
    return std::hypot(way.x(), way.y());
}

/// How often the picture can be halved so that it is still at least as large as it appears.
int reduction(int pixels, double shown)
{
    const double halvings = std::floor(std::log2(pixels / std::max(shown, 1.0)) + 1e-6);
    return static_cast<int>(std::clamp(halvings, 0.0, double(ReducedPicture::kMaxLevel)));
}

/// Paints a run of pixels of one row that share an opacity.
class CardPainter
{
public:
    CardPainter(const TargetArea &target, const Card &card, const CardSampler &sampler)
        : m_target(target), m_card(card), m_sampler(sampler)
    {
    }

    void paint(int row, ColumnSpan span, int opacity) const
    {
        std::array<QRgb, CardSampler::kRun> pixels;
        for (int x = span.begin; x < span.end; x += CardSampler::kRun) {
            const int count = std::min(CardSampler::kRun, span.end - x);
            QRgb *target = m_target.row(row) + x;
            QRgb *sampled = opacity == kFullWeight ? target : pixels.data();
            m_sampler.sample(sampled, x, row, count);
            if (m_card.light < kFullWeight)
                darkenRow(sampled, sampled, count, m_card.light);
            if (opacity < kFullWeight)
                mixRow(target, target, sampled, count, opacity);
        }
    }

    /// The row of the card without the pixels hidden by another shape.
    void paintRow(int row, const QuadShape &shape, const QuadShape *hidden) const
    {
        const ColumnSpan touched = shape.span(row, -0.5, m_target.width);
        ColumnSpan inner = shape.span(row, 0.5, m_target.width);
        if (inner.begin >= inner.end)
            inner = {touched.end, touched.end};
        paintEdge(row, {touched.begin, inner.begin}, shape);
        ColumnSpan gap = hidden ? hidden->span(row, 0.5, m_target.width) : ColumnSpan();
        if (gap.begin >= gap.end)
            gap = {inner.end, inner.end};
        paint(row, {inner.begin, std::min(gap.begin, inner.end)}, m_card.opacity);
        paint(row, {std::max(gap.end, inner.begin), inner.end}, m_card.opacity);
        paintEdge(row, {inner.end, touched.end}, shape);
    }

private:
    void paintEdge(int row, ColumnSpan span, const QuadShape &shape) const
    {
        for (int x = span.begin; x < span.end; ++x) {
            const double covered = shape.coverage(x, row);
            if (covered > 0)
                paint(row, {x, x + 1}, weightOf(covered * m_card.opacity / kFullWeight));
        }
    }

    TargetArea m_target;
    const Card &m_card;
    const CardSampler &m_sampler;
};

struct Shadow {
    double reach;
    double strength;
};

void shadeRow(const TargetArea &target, const QuadShape &shape, int row, ColumnSpan span,
              const Shadow &shadow)
{
    constexpr int kRun = 256;
    std::array<float, kRun> distances;
    const auto scale = static_cast<float>(1 / shadow.reach);
    const auto darkest = static_cast<float>(shadow.strength * kFullWeight);
    for (int begin = span.begin; begin < span.end; begin += kRun) {
        const int count = std::min(kRun, span.end - begin);
        shape.distances(begin, row, count, distances.data());
        QRgb *pixels = target.row(row) + begin;
        for (int i = 0; i < count; ++i) {
            const float rest = 1 - std::min(1.0f, distances[static_cast<size_t>(i)] * scale);
            const auto shade = static_cast<int>(darkest * rest * rest * rest + 0.5f);
            pixels[i] = mixPixels(pixels[i], 0xff000000u, shade);
        }
    }
}

/// Reads the picture in the size that suits its placement and paints it row by row.
void paintCard(const TargetArea &target, const Card &card, const QuadShape *hidden)
{
    const auto corners = cornersOf(card);
    const QuadShape shape(corners);
    if (shape.isEmpty() || card.opacity <= 0)
        return;
    const double across =
        std::max(length(corners[1] - corners[0]), length(corners[2] - corners[3]));
    const double down = std::max(length(corners[3] - corners[0]), length(corners[2] - corners[1]));
    const int xLevel = reduction(card.picture.width, across);
    const int yLevel = reduction(card.picture.height, down);
    const ReducedPicture reduced(card.picture, xLevel, yLevel);
    const QTransform enlarge = QTransform::fromScale(1 << xLevel, 1 << yLevel);
    const CardSampler sampler(reduced.area(), (enlarge * card.placement).inverted());
    const CardPainter painter(target, card, sampler);
    const ColumnSpan rows = shape.rows(1, target.height);
    for (int y = rows.begin; y < rows.end; ++y)
        painter.paintRow(y, shape, hidden);
}

} // namespace

QuadShape Card::shape() const
{
    return QuadShape(cornersOf(*this));
}

void drawCard(const TargetArea &target, const Card &card)
{
    paintCard(target, card, nullptr);
}

void drawCardAround(const TargetArea &target, const Card &card, const QuadShape &hidden)
{
    paintCard(target, card, hidden.isEmpty() ? nullptr : &hidden);
}

void drawCardShadow(const TargetArea &target, const QuadShape &shape, double reach, double strength)
{
    if (shape.isEmpty() || reach < 1)
        return;
    const ColumnSpan rows = shape.rows(reach, target.height);
    for (int y = rows.begin; y < rows.end; ++y) {
        const ColumnSpan shaded = shape.span(y, -reach, target.width);
        ColumnSpan hidden = shape.span(y, 0.5, target.width);
        if (hidden.begin >= hidden.end)
            hidden = {shaded.end, shaded.end};
        shadeRow(target, shape, y, {shaded.begin, hidden.begin}, {reach, strength});
        shadeRow(target, shape, y, {hidden.end, shaded.end}, {reach, strength});
    }
}

} // namespace velmora
