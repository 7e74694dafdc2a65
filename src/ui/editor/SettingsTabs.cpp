// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/editor/SettingsTabs.h"

#include <QTabBar>
#include <QVBoxLayout>

namespace velmora
{

SettingsTabs::SettingsTabs(QWidget *parent)
    : QWidget(parent), m_bar(new QTabBar(this)), m_column(new QVBoxLayout(this))
{
    m_bar->setObjectName(QStringLiteral("settingsTabs"));
    m_bar->setAccessibleName(tr("Settings of the slideshow"));
    m_bar->setDrawBase(false);
    m_bar->setExpanding(false);
    m_column->setContentsMargins(0, 0, 0, 0);
    m_column->setSpacing(8);
    m_column->addWidget(m_bar);
    connect(m_bar, &QTabBar::currentChanged, this, &SettingsTabs::showGroups);
}

void SettingsTabs::addGroup(const QString &title, QWidget *group, int stretch)
{
    m_groups.append(group);
    m_column->addWidget(group, stretch);
    m_bar->addTab(title);
    showGroups();
}

void SettingsTabs::setAllShown(bool all)
{
    if (all == m_all)
        return;
    m_all = all;
    m_column->setSpacing(all ? 16 : 8);
    showGroups();
    emit allShownChanged(all);
}

void SettingsTabs::showGroups()
{
    m_bar->setVisible(!m_all && m_groups.size() > 1);
    for (int i = 0; i < m_groups.size(); ++i)
        m_groups.at(i)->setVisible(m_all || i == m_bar->currentIndex());
}

} // namespace velmora
