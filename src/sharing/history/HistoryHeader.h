// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

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
