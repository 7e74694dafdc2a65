// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/slides/JsonValues.h"

#include <QJsonObject>
#include <QtMath>

#include <algorithm>
#include <limits>

namespace velmora
{

int readInt(const QJsonObject &object, QLatin1String key)
{
    const double number = object.value(key).toDouble();
    if (qIsNaN(number)) {
        return 0;
    }
    constexpr double kLowest = std::numeric_limits<int>::min();
    constexpr double kHighest = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(number, kLowest, kHighest));
}

} // namespace velmora
