// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sharing/history/HistoryColumns.h"

#include <QWidget>

class QLabel;
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

protected:
    void changeEvent(QEvent *event) override;

private:
    QPushButton *createButton(const char *name);
    void retranslate();

    QPushButton *m_date;
    QPushButton *m_fileName;
    QLabel *m_resolution;
    QLabel *m_duration;
    QLabel *m_size;
    QLabel *m_action;
};

} // namespace velmora
