// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace velmora
{

/// The columns that the rows of the history share with the header above them, in px.
namespace HistoryColumns
{

constexpr int Margin = 16;
constexpr int Gap = 16;
constexpr int RowHeight = 72;
constexpr int PictureWidth = 80;
constexpr int PictureHeight = 54;
constexpr int Action = 156;

/// Of columns that hold text.
struct Widths {
    int date;
    int resolution;
    int duration;
    int size;
};

} // namespace HistoryColumns

} // namespace velmora
