// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMimeData>
#include <QVector>

class QAbstractItemView;

namespace velmora
{

/// What is dragged while rows of a table are reordered; it never leaves the program. Once rows
/// come, go or move otherwise, their numbers are of no use and it has none any more. GUI thread.
class RowsMimeData : public QMimeData
{
    Q_OBJECT
public:
    RowsMimeData(const QAbstractItemView *source, QVector<int> rows);

    /// The rows when @p data was made by a drag that @p source started, else none.
    static QVector<int> rowsFrom(const QMimeData *data, const QAbstractItemView *source);

    QStringList formats() const override;

signals:
    void outdated(); ///< It has no rows any more.

private:
    void forget();

    const QAbstractItemView *m_source; ///< Only compared.
    QVector<int> m_rows;
};

} // namespace velmora
