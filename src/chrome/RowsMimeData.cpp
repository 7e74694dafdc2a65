// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/RowsMimeData.h"

#include <QAbstractItemView>

#include <utility>

namespace velmora
{

RowsMimeData::RowsMimeData(const QAbstractItemView *source, QVector<int> rows)
    : m_source(source), m_rows(std::move(rows))
{
    const QAbstractItemModel *model = source->model();
    if (!model)
        return;
    connect(model, &QAbstractItemModel::modelReset, this, &RowsMimeData::forget);
    connect(model, &QAbstractItemModel::layoutChanged, this, &RowsMimeData::forget);
    connect(model, &QAbstractItemModel::rowsInserted, this, &RowsMimeData::forget);
    connect(model, &QAbstractItemModel::rowsRemoved, this, &RowsMimeData::forget);
    connect(model, &QAbstractItemModel::rowsMoved, this, &RowsMimeData::forget);
}

void RowsMimeData::forget()
{
    m_rows.clear();
    emit outdated();
}

QVector<int> RowsMimeData::rowsFrom(const QMimeData *data, const QAbstractItemView *source)
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
