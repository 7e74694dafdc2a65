// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/history/HistoryHeader.h"

#include "chrome/Theme.h"
#include "sharing/history/HistoryRowWidget.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVariant>

#include <algorithm>

namespace velmora
{

namespace
{

constexpr int kButtonPadding = 8; // Of flat header buttons in the style sheet.

int fittingWidth(int least, const QStringList &texts)
{
    int width = least;
    for (const QString &text : texts)
        width = std::max(width, QLabel(text).sizeHint().width());
    return width;
}

} // namespace

HistoryColumns::Widths HistoryHeader::columnWidths()
{
    return {fittingWidth(96, {tr("Date"), QStringLiteral("00.00.0000")}),
            fittingWidth(92, {tr("Resolution"), QStringLiteral("0000x0000")}),
            fittingWidth(84, {tr("Duration"), QStringLiteral("00:00:00")}),
            fittingWidth(84, {tr("Size"), HistoryRowWidget::tr("%1 MB").arg(10000),
                              HistoryRowWidget::tr("removed")})};
}

HistoryHeader::HistoryHeader(QWidget *parent)
    : QWidget(parent), m_date(createButton("btnDate")), m_fileName(createButton("btnFileName")),
      m_resolution(new QLabel(this)), m_duration(new QLabel(this)), m_size(new QLabel(this)),
      m_action(new QLabel(this))
{
    using namespace HistoryColumns;
    connect(m_date, &QPushButton::clicked, this, &HistoryHeader::dateClicked);
    connect(m_fileName, &QPushButton::clicked, this, &HistoryHeader::fileNameClicked);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(Margin + PictureWidth + Gap - kButtonPadding, 4, Margin, 4);
    layout->setSpacing(Gap);
    layout->addWidget(m_date);
    // The text of the button stands above the text of the rows.
    layout->addSpacing(-kButtonPadding);
    layout->addWidget(m_fileName);
    layout->addStretch(1);
    for (QLabel *label : {m_resolution, m_duration, m_size, m_action}) {
        label->setProperty("secondary", true);
        layout->addWidget(label);
    }
    retranslate();
}

void HistoryHeader::retranslate()
{
    const HistoryColumns::Widths widths = columnWidths();
    const auto set = [](auto *widget, const QString &text, int width) {
        widget->setText(text);
        widget->setFixedWidth(width);
    };
    set(m_date, tr("Date"), kButtonPadding + widths.date);
    m_fileName->setText(tr("File name"));
    set(m_resolution, tr("Resolution"), widths.resolution);
    set(m_duration, tr("Duration"), widths.duration);
    set(m_size, tr("Size"), widths.size);
    set(m_action, tr("Action"), HistoryColumns::Action);
    for (QPushButton *button : {m_date, m_fileName}) {
        button->setToolTip(tr("Sort by this column"));
        button->setAccessibleDescription(button->icon().isNull() ? QString()
                                                                 : tr("Sorts the list"));
    }
}

void HistoryHeader::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QWidget::changeEvent(event);
}

QPushButton *HistoryHeader::createButton(const char *name)
{
    auto *button = new QPushButton(this);
    button->setObjectName(QLatin1String(name));
    button->setProperty("flat", true);
    button->setProperty("columnHeader", true);
    button->setLayoutDirection(Qt::RightToLeft); // The arrow follows the text.
    button->setIconSize({16, 16});
    return button;
}

void HistoryHeader::setFreeSpace(int width)
{
    QMargins margins = layout()->contentsMargins();
    margins.setRight(HistoryColumns::Margin + width);
    layout()->setContentsMargins(margins);
}

void HistoryHeader::showArrow(bool byDate, bool ascending)
{
    const QIcon arrow =
        Theme::icon(ascending ? QStringLiteral("arrow-up") : QStringLiteral("arrow-down"));
    m_date->setIcon(byDate ? arrow : QIcon());
    m_fileName->setIcon(byDate ? QIcon() : arrow);
    retranslate();
}

} // namespace velmora
