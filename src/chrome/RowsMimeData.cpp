// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/RowsMimeData.h"

#include <utility>

namespace velmora
{

RowsMimeData::RowsMimeData(const QObject *source, QVector<int> rows)
    : m_source(source), m_rows(std::move(rows))
{
}

QVector<int> RowsMimeData::rowsFrom(const QMimeData *data, const QObject *source)
{
    const auto *rows = qobject_cast<const RowsMimeData *>(data);
    return rows && rows->m_source == source ? rows->m_rows : QVector<int>();
}

QStringList RowsMimeData::formats() const
{
    // Without a format the window system would not start the drag.
    return {QStringLiteral("application/x-velmora-rows")};
}

} // namespace velmora
