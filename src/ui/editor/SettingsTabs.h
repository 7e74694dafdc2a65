// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QVector>
#include <QWidget>

class QTabBar;
class QVBoxLayout;

namespace velmora
{

/// Groups of settings: one at a time below a bar of tabs where there is little room, else all of
/// them below each other. GUI thread.
class SettingsTabs : public QWidget
{
    Q_OBJECT
public:
    explicit SettingsTabs(QWidget *parent = nullptr);

    /// @p stretch: its share of spare height while all groups are shown.
    void addGroup(const QString &title, QWidget *group, int stretch);
    void setAllShown(bool all);
    bool isAllShown() const { return m_all; }

signals:
    void allShownChanged(bool all);

private:
    void showGroups();

    QTabBar *m_bar;
    QVBoxLayout *m_column;
    QVector<QWidget *> m_groups;
    bool m_all = false;
};

} // namespace velmora
