// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/transitions/StretchEffects.h"

#include "generator/transitions/Easing.h"
#include "generator/transitions/PixelRows.h"
#include "generator/transitions/RowReducer.h"
#include "generator/transitions/RowScaler.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace velmora
{

namespace
{

/// How often a side can be halved before it gets smaller than it is shown.
int halvings(int pixels, double shown)
{
    int level = 0;
    while (level < RowReducer::kMaxLevel && pixels >> (level + 1) >= shown)
        ++level;
    return level;
}

/// A part of the frame, from @p begin to @p end along one side, that shows a whole picture.
struct Part {
    double begin;
    double end;

    int first() const { return static_cast<int>(std::lround(begin)); }
    int last() const { return static_cast<int>(std::lround(end)); }
    double length() const { return end - begin; }
    /// The place that the pixel @p index shows of a picture of @p pixels (not rounded).
    double placeOf(int index, double pixels) const
    {
        return (index + 0.5 - begin) * pixels / length();
    }
};

void squeezeColumns(const TargetArea &target, const SourceArea &picture, const Part &part)
{
    const int first = part.first();
    const int count = part.last() - first;
    if (count <= 0)
        return;
    const int level = halvings(picture.width, part.length());
    RowReducer reducer(picture, level, 0);
    const double pixels = static_cast<double>(picture.width) / (1 << level);
    const RowScaler scaler(count, reducer.width(), part.placeOf(first, pixels),
                           pixels / part.length());
    std::vector<QRgb> line(static_cast<size_t>(level > 0 ? reducer.width() : 0));
    for (int y = 0; y < target.height; ++y) {
        if (level > 0)
            reducer.reduce(line.data(), y);
        scaler.scale(target.row(y) + first, level > 0 ? line.data() : picture.row(y));
    }
}

/// Rows of a picture with its height reduced, of which the last two are remembered.
class SqueezedRows
{
public:
    SqueezedRows(const SourceArea &picture, int level)
        : m_picture(picture), m_reducer(picture, 0, level), m_reduces(level > 0)
    {
    }

    int count() const { return m_reducer.height(); }

    const QRgb *row(int y)
    {
        if (!m_reduces)
            return m_picture.row(y);
        Line &line = m_lines[static_cast<size_t>(y % 2)];
        if (line.row != y) {
            line.pixels.resize(static_cast<size_t>(m_reducer.width()));
            m_reducer.reduce(line.pixels.data(), y);
            line.row = y;
        }
        return line.pixels.data();
    }

private:
    struct Line {
        int row = -1;
        std::vector<QRgb> pixels;
    };
    SourceArea m_picture;
    RowReducer m_reducer;
    std::array<Line, 2> m_lines;
    bool m_reduces;
};

void squeezeRows(const TargetArea &target, const SourceArea &picture, const Part &part)
{
    if (part.first() >= part.last())
        return;
    const int level = halvings(picture.height, part.length());
    SqueezedRows source(picture, level);
    const double pixels = static_cast<double>(picture.height) / (1 << level);
    for (int y = part.first(); y < part.last(); ++y) {
        const double place = std::clamp(part.placeOf(y, pixels) - 0.5, 0.0, source.count() - 1.0);
        const int above = static_cast<int>(place);
        const int below = std::min(above + 1, source.count() - 1);
        mixRow(target.row(y), source.row(above), source.row(below), target.width,
               weightOf(place - above));
    }
}

} // namespace

void composeStretchHorizontal(const EffectFrame &frame)
{
    const double width = frame.target.width;
    const double seam = easing::inOut(frame.progress()) * width;
    squeezeColumns(frame.target, frame.to, {0, seam});
    squeezeColumns(frame.target, frame.from, {seam, width});
}

void composeStretchVertical(const EffectFrame &frame)
{
    const double height = frame.target.height;
    const double seam = easing::inOut(frame.progress()) * height;
    squeezeRows(frame.target, frame.to, {0, seam});
    squeezeRows(frame.target, frame.from, {seam, height});
}

} // namespace velmora
