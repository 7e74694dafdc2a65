// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QPainterPath>
#include <QPointF>

namespace velmora::samples
{

class Random;

/// The outline of a spruce that stands at @p foot, @p height px tall.
QPainterPath sprucePath(const QPointF &foot, double height, Random &random);

} // namespace velmora::samples
