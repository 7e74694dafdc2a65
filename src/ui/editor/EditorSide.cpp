// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/editor/EditorSide.h"

#include <QEvent>
#include <QTabBar>
#include <QVBoxLayout>

#include <algorithm>

namespace velmora
{

namespace
{

constexpr int kSmallestWidth = 352;   // px
constexpr int kGap = 16;              // px
constexpr int kTabGap = 8;            // px between the tabs and what they show
constexpr int kPreviewControls = 160; // px beside a picture of 16:9 that fills the width
constexpr int kTighterPreview = 56;   // px that may be missing from that if all is shown
constexpr int kLeastPreview = 264;    // px that are worth a preview beside the groups

/// What takes keys in @p part, in the part's own order.
QVector<QWidget *> keyWidgets(QWidget *part)
{
    QVector<QWidget *> widgets;
    QWidget *next = part;
    do {
        const bool isInside = next == part || part->isAncestorOf(next);
        if (isInside && next->focusPolicy() != Qt::NoFocus && !next->focusProxy())
            widgets.append(next);
        next = next->nextInFocusChain();
    } while (next != part);
    return widgets;
}

} // namespace

EditorSide::EditorSide(QWidget *preview, QWidget *create, QWidget *parent)
    : QWidget(parent), m_preview(preview), m_create(create), m_bar(new QTabBar(this)),
      m_box(new QWidget(this)), m_rest(new QWidget(this)), m_column(new QVBoxLayout(this)),
      m_boxColumn(new QVBoxLayout(m_box))
{
    m_bar->setObjectName(QStringLiteral("sideTabs"));
    m_bar->setDrawBase(false);
    m_bar->setExpanding(false);
    m_bar->addTab(QString());
    m_boxColumn->setContentsMargins(0, 0, 0, 0);
    m_boxColumn->setSpacing(kGap);
    m_column->setContentsMargins(0, 0, 0, 0);
    m_column->setSpacing(kTabGap);
    m_rest->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    m_column->addWidget(m_preview, 1000); // up to its greatest height
    m_column->addWidget(m_bar);
    m_column->addWidget(m_box, 1);
    m_column->addWidget(m_rest, 1);
    m_column->addSpacing(kGap - kTabGap);
    m_column->addWidget(m_create);
    connect(m_bar, &QTabBar::currentChanged, this, &EditorSide::showParts);
}

void EditorSide::addGroup(QWidget *group, bool grows)
{
    m_groups.append(group);
    m_boxColumn->addWidget(group, grows ? 1 : 0);
    m_bar->addTab(QString());
    arrange();
}

void EditorSide::setTitles(const QStringList &titles)
{
    for (int i = 0; i < titles.size(); ++i)
        m_bar->setTabText(i, titles.at(i));
    m_bar->setAccessibleName(tr("Preview and settings"));
}

void EditorSide::showPreview()
{
    if (m_mode == Mode::Tabs)
        m_bar->setCurrentIndex(0);
}

QSize EditorSide::minimumSizeHint() const
{
    const int part = std::max(m_preview->minimumSizeHint().height(), tallestGroup() + kTabGap);
    const int height =
        m_bar->sizeHint().height() + part + kGap + m_create->minimumSizeHint().height();
    return {leastWidth(), height};
}

bool EditorSide::event(QEvent *event)
{
    if (event->type() == QEvent::LayoutRequest) {
        arrange();
        emit partsChanged();
    }
    return QWidget::event(event);
}

void EditorSide::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    arrange();
}

int EditorSide::previewHeight() const
{
    return width() * 9 / 16 + kPreviewControls;
}

/// Also of what is not shown now, as tabs must not change the width. The preview adapts itself to
/// any.
int EditorSide::leastWidth() const
{
    int width = std::max(kSmallestWidth, m_create->minimumSizeHint().width());
    for (const QWidget *group : m_groups)
        width = std::max(width, group->minimumSizeHint().width());
    return width;
}

int EditorSide::tallestGroup() const
{
    int height = 0;
    for (const QWidget *group : m_groups)
        height = std::max(height, group->minimumSizeHint().height());
    return height;
}

EditorSide::Mode EditorSide::fittingMode() const
{
    const int room = height() - m_create->sizeHint().height() - 2 * kGap;
    int all = previewHeight() - kTighterPreview;
    for (const QWidget *group : m_groups)
        all += group->sizeHint().height() + kGap;
    if (all - kGap <= room)
        return Mode::All;
    const int some = kLeastPreview + m_bar->sizeHint().height() + kTabGap + tallestGroup();
    return some <= room ? Mode::PreviewAndTabs : Mode::Tabs;
}

void EditorSide::arrange()
{
    m_preview->setMaximumHeight(previewHeight());
    setMode(fittingMode());
    setTabOrder();
}

/// From the top to the bottom, wherever the parts were before they came here: also the player,
/// that may have been a window of its own meanwhile.
void EditorSide::setTabOrder()
{
    QVector<QWidget *> parts = {m_preview, m_bar};
    parts += m_groups;
    parts.append(m_create);
    if (m_mode == Mode::Tabs)
        std::swap(parts[0], parts[1]);
    QVector<QWidget *> widgets;
    for (QWidget *part : qAsConst(parts))
        widgets += keyWidgets(part);
    for (int i = 1; i < widgets.size(); ++i)
        QWidget::setTabOrder(widgets.at(i - 1), widgets.at(i));
}

void EditorSide::setMode(Mode mode)
{
    if (mode == m_mode && !m_groups.isEmpty())
        return;
    m_mode = mode;
    m_column->removeWidget(m_bar);
    m_column->insertWidget(mode == Mode::Tabs ? 0 : 1, m_bar);
    showParts();
    emit modeChanged(mode);
}

void EditorSide::showParts()
{
    const bool alone = m_mode == Mode::Tabs;
    // Without the preview's own tab, the first one stands for the first group.
    if (!alone && m_bar->currentIndex() == 0)
        m_bar->setCurrentIndex(1);
    m_bar->setTabVisible(0, alone);
    m_bar->setVisible(m_mode != Mode::All);
    const int shown = m_bar->currentIndex();
    const bool previewAlone = alone && shown == 0;
    m_preview->setVisible(!alone || previewAlone);
    m_rest->setVisible(previewAlone);
    m_box->setVisible(!previewAlone);
    m_boxColumn->setContentsMargins(0, m_mode == Mode::All ? kGap - kTabGap : 0, 0, 0);
    m_box->setMinimumHeight(m_mode == Mode::PreviewAndTabs ? tallestGroup() : 0);
    for (int i = 0; i < m_groups.size(); ++i)
        m_groups.at(i)->setVisible(m_mode == Mode::All || i + 1 == std::max(1, shown));
}

} // namespace velmora
