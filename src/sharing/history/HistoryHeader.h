// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sharing/history/HistoryColumns.h"

#include <QWidget>

class QPushButton;

namespace velmora
{

/// The names of the history's columns; the buttons among them sort the list.
class HistoryHeader : public QWidget
{
    Q_OBJECT
public:
    explicit HistoryHeader(QWidget *parent = nullptr);

    /// Wide enough for names and values, whatever language and font.
    static HistoryColumns::Widths columnWidths();

    /// Keeps the columns above those of a list that leaves @p width px free at its right.
    void setFreeSpace(int width);
    /// Marks the column that sorts, by an arrow; the other one has none.
    void showArrow(bool byDate, bool ascending);

signals:
    void dateClicked();
    void fileNameClicked();

private:
    QPushButton *createButton(const char *name, const QString &text);

    QPushButton *m_date;
    QPushButton *m_fileName;
};

} // namespace velmora
