// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/transitions/Card.h"

#include "generator/transitions/CardSampler.h"
#include "generator/transitions/Easing.h"
#include "generator/transitions/ReducedPicture.h"
#include "generator/transitions/RowReducer.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace velmora
{

namespace
{

constexpr int kBand = 64;        ///< columns painted together
constexpr double kLevel = 0.005; ///< slope up to which the processor foresees what is read
constexpr int kLine = 16;        ///< pixels that memory gives at a time
constexpr int kRowsAhead = 12;

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

ColumnSpan cut(ColumnSpan span, ColumnSpan band)
{
    return {std::max(span.begin, band.begin), std::min(span.end, band.end)};
}

/// How often the picture can be halved so that it is still at least as large as it appears.
int reduction(int pixels, double shown)
{
    const double halvings = std::floor(std::log2(pixels / std::max(shown, 1.0)) + 1e-6);
    return static_cast<int>(std::clamp(halvings, 0.0, double(RowReducer::kMaxLevel)));
}

/// How steep the upper or the lower edge is, whichever is steeper.
double slopeOf(const std::array<QPointF, 4> &corners)
{
    const auto slope = [](const QPointF &way) {
        return std::abs(way.y()) / std::max(std::abs(way.x()), 1e-3);
    };
    return std::max(slope(corners[1] - corners[0]), slope(corners[2] - corners[3]));
}

/// What a row shows of a shape: the pixels it touches, those it covers wholly, and among them
/// those that something else hides.
struct RowSpans {
    ColumnSpan touched;
    ColumnSpan inner;
    ColumnSpan gap;
};

RowSpans spansOf(int row, const QuadShape &shape, const QuadShape *hidden, int width)
{
    RowSpans spans;
    spans.touched = shape.span(row, -0.5, width);
    spans.inner = shape.span(row, 0.5, width);
    if (spans.inner.begin >= spans.inner.end)
        spans.inner = {spans.touched.end, spans.touched.end};
    spans.gap = hidden ? hidden->span(row, 0.5, width) : ColumnSpan();
    if (spans.gap.begin >= spans.gap.end)
        spans.gap = {spans.inner.end, spans.inner.end};
    return spans;
}

/// Paints parts of single rows of a card.
class CardPainter
{
public:
    CardPainter(const TargetArea &target, const Card &card, const QuadShape &shape,
                const CardSampler &sampler)
        : m_target(target), m_card(card), m_shape(shape), m_sampler(sampler)
    {
    }

    /// Asks for the memory of a span of a row: the target's, and with a @p step the picture's for
    /// every so many pixels.
    void fetch(int row, ColumnSpan span, int step) const
    {
        for (int x = span.begin; x < span.end; x += kLine)
            __builtin_prefetch(m_target.row(row) + x, 1);
        if (step > 0)
            m_sampler.fetch(row, span, step);
    }

    /// The part of a row of the card that lies in @p band, without the hidden pixels.
    void paintRow(int row, const RowSpans &spans, ColumnSpan band) const
    {
        const auto inBand = [band](int begin, int end) { return cut({begin, end}, band); };
        const ColumnSpan &inner = spans.inner;
        paintEdge(row, inBand(spans.touched.begin, inner.begin));
        paint(row, inBand(inner.begin, std::min(spans.gap.begin, inner.end)), m_card.opacity);
        paint(row, inBand(std::max(spans.gap.end, inner.begin), inner.end), m_card.opacity);
        paintEdge(row, inBand(inner.end, spans.touched.end));
    }

private:
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

    void paintEdge(int row, ColumnSpan span) const
    {
        for (int x = span.begin; x < span.end; ++x) {
            const double covered = m_shape.coverage(x, row);
            if (covered > 0)
                paint(row, {x, x + 1}, weightOf(covered * m_card.opacity / kFullWeight));
        }
    }

    TargetArea m_target;
    const Card &m_card;
    const QuadShape &m_shape;
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

/// Columns that are painted together, and how steeply a row of them crosses the picture.
struct Band {
    ColumnSpan columns;
    double slope;
};

/// A row of a turned card crosses many rows of the picture, which the processor does not foresee:
/// in a narrow band, memory is asked for some rows before it is read and written.
void paintBand(const CardPainter &painter, const Band &band, const ColumnSpan &rows,
               const std::vector<RowSpans> &spans)
{
    const bool narrow = band.slope > kLevel;
    const double slope = std::clamp(band.slope, 1.0 / kLine, 1.0);
    const int pixelsTogether = static_cast<int>(1 / slope);
    const int rowsTogether = std::max(1, static_cast<int>(kLine / 2 * slope));
    for (int y = rows.begin; y < rows.end; ++y) {
        const int next = y + kRowsAhead;
        if (narrow && next < rows.end)
            painter.fetch(next,
                          cut(spans[static_cast<size_t>(next - rows.begin)].touched, band.columns),
                          y % rowsTogether == 0 ? pixelsTogether : 0);
        painter.paintRow(y, spans[static_cast<size_t>(y - rows.begin)], band.columns);
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
    const CardSampler sampler(reduced.area(), (enlarge * card.placement).inverted(), target.width);
    const CardPainter painter(target, card, shape, sampler);
    const ColumnSpan rows = shape.rows(1, target.height);
    std::vector<RowSpans> spans;
    for (int y = rows.begin; y < rows.end; ++y)
        spans.push_back(spansOf(y, shape, hidden, target.width));
    const Band whole = {{0, target.width}, slopeOf(corners)};
    if (whole.slope > kLevel) {
        for (int x = 0; x < target.width; x += kBand)
            paintBand(painter, {{x, std::min(x + kBand, target.width)}, whole.slope}, rows, spans);
    } else {
        paintBand(painter, whole, rows, spans);
    }
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
