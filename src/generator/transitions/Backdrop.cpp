// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/transitions/Backdrop.h"

#include "generator/transitions/Card.h"

#include <algorithm>
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

} // namespace

void drawBackdrop(const TargetArea &target, const SourceArea &a, const SourceArea &b, int weight,
                  const QuadShape &hidden)
{
    Cells mixed = cellsOf(a);
    mixRow(mixed.data(), mixed.data(), cellsOf(b).data(), kColumns * kRows, weight);
    const Cells cells = blurred(blurred(mixed));
    const SourceArea picture = {cells.data(), kColumns, kColumns, kRows};
    // A little larger than the frame, so that no edge pixel of the frame is a mixture.
    const QTransform placement(static_cast<double>(target.width + 4) / kColumns, 0, 0,
                               static_cast<double>(target.height + 4) / kRows, -2, -2);
    Card card = {picture, placement};
    card.light = kLight;
    drawCardAround(target, card, hidden);
}

} // namespace velmora
