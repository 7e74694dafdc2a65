// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/transitions/Backdrop.h"

#include "generator/transitions/PixelRows.h"
#include "generator/transitions/RowScaler.h"

#include <algorithm>
#include <array>
#include <vector>

namespace velmora
{

namespace
{

constexpr int kColumns = 16;
constexpr int kRows = 9;
constexpr int kSamples = 12; ///< per cell and direction: a blur needs no more
constexpr int kLight = 90;

using Cells = std::vector<QRgb>;

QRgb mean(const SourceArea &picture, const QRect &part)
{
    int red = 0;
    int green = 0;
    int blue = 0;
    for (int j = 0; j < kSamples; ++j) {
        const QRgb *row = picture.row(part.y() + part.height() * j / kSamples) + part.x();
        for (int i = 0; i < kSamples; ++i) {
            const QRgb pixel = row[part.width() * i / kSamples];
            red += qRed(pixel);
            green += qGreen(pixel);
            blue += qBlue(pixel);
        }
    }
    const int count = kSamples * kSamples;
    return qRgb(red / count, green / count, blue / count);
}

Cells cellsOf(const SourceArea &picture)
{
    Cells cells;
    for (int row = 0; row < kRows; ++row) {
        const int top = picture.height * row / kRows;
        const int bottom = std::max(top + 1, picture.height * (row + 1) / kRows);
        for (int column = 0; column < kColumns; ++column) {
            const int left = picture.width * column / kColumns;
            const int right = std::max(left + 1, picture.width * (column + 1) / kColumns);
            cells.push_back(mean(picture, {left, top, right - left, bottom - top}));
        }
    }
    return cells;
}

/// The mean of a cell and its neighbours.
Cells blurred(const Cells &cells)
{
    const SourceArea area = {cells.data(), kColumns, kColumns, kRows};
    Cells result;
    for (int row = 0; row < kRows; ++row) {
        for (int column = 0; column < kColumns; ++column) {
            int sums[3] = {};
            for (int j = -1; j <= 1; ++j) {
                for (int i = -1; i <= 1; ++i) {
                    const QRgb pixel = area.row(
                        std::clamp(row + j, 0, kRows - 1))[std::clamp(column + i, 0, kColumns - 1)];
                    sums[0] += qRed(pixel);
                    sums[1] += qGreen(pixel);
                    sums[2] += qBlue(pixel);
                }
            }
            result.push_back(qRgb(sums[0] / 9, sums[1] / 9, sums[2] / 9));
        }
    }
    return result;
}

/// Copies the pixels outside @p gap.
void copyAround(QRgb *target, const std::vector<QRgb> &line, ColumnSpan gap)
{
    if (gap.begin >= gap.end)
        gap = {0, 0};
    std::copy(line.begin(), line.begin() + gap.begin, target);
    std::copy(line.begin() + gap.end, line.end(), target + gap.end);
}

} // namespace

void drawBackdrop(const TargetArea &target, const SourceArea &a, const SourceArea &b, int weight,
                  const QuadShape &hidden)
{
    Cells mixed = cellsOf(a);
    mixRow(mixed.data(), mixed.data(), cellsOf(b).data(), kColumns * kRows, weight);
    darkenRow(mixed.data(), mixed.data(), kColumns * kRows, kLight);
    const Cells cells = blurred(blurred(mixed));
    const SourceArea picture = {cells.data(), kColumns, kColumns, kRows};

    const double step = static_cast<double>(kColumns) / target.width;
    const RowScaler scaler(target.width, kColumns, step / 2, step);
    std::vector<QRgb> line(static_cast<size_t>(target.width));
    std::array<QRgb, kColumns> colors;
    // The picture changes so slowly that a few rows can share their pixels.
    const int shared = std::max(1, target.height / 360);
    for (int y = 0; y < target.height; ++y) {
        if (y % shared == 0) {
            const double place =
                std::clamp((y + 0.5) * kRows / target.height - 0.5, 0.0, kRows - 1.0);
            const int above = std::min(static_cast<int>(place), kRows - 2);
            mixRow(colors.data(), picture.row(above), picture.row(above + 1), kColumns,
                   weightOf(place - above));
            scaler.scale(line.data(), colors.data());
        }
        copyAround(target.row(y), line,
                   hidden.isEmpty() ? ColumnSpan() : hidden.span(y, 0.5, target.width));
    }
}

} // namespace velmora
