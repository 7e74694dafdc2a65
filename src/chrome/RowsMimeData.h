// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMimeData>
#include <QVector>

namespace velmora
{

/// What is dragged while rows of a table are reordered; it never leaves the program. GUI thread.
class RowsMimeData : public QMimeData
{
    Q_OBJECT
public:
    RowsMimeData(const QObject *source, QVector<int> rows);

    /// The rows when @p data was made by a drag that @p source started, else none.
    static QVector<int> rowsFrom(const QMimeData *data, const QObject *source);

    QStringList formats() const override;

private:
    const QObject *m_source; ///< Only compared.
    QVector<int> m_rows;
};

} // namespace velmora
