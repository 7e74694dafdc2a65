// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/history/HistoryHeader.h"

#include "chrome/Theme.h"
#include "sharing/history/HistoryRowWidget.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVariant>

#include <algorithm>

namespace velmora
{

namespace
{

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

HistoryHeader::HistoryHeader(QWidget *parent) : QWidget(parent)
{
    using namespace HistoryColumns;
    constexpr int kButtonPadding = 8; // Of flat header buttons in the style sheet.
    m_date = createButton("btnDate", tr("Date"));
    m_fileName = createButton("btnFileName", tr("File name"));
    connect(m_date, &QPushButton::clicked, this, &HistoryHeader::dateClicked);
    connect(m_fileName, &QPushButton::clicked, this, &HistoryHeader::fileNameClicked);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(Margin + PictureWidth + Gap - kButtonPadding, 4, Margin, 4);
    layout->setSpacing(Gap);
    const Widths widths = columnWidths();
    m_date->setFixedWidth(kButtonPadding + widths.date);
    layout->addWidget(m_date);
    // The text of the button stands above the text of the rows.
    layout->addSpacing(-kButtonPadding);
    layout->addWidget(m_fileName);
    layout->addStretch(1);
    const auto addLabel = [&](const QString &text, int width) {
        auto *label = new QLabel(text, this);
        label->setProperty("secondary", true);
        label->setFixedWidth(width);
        layout->addWidget(label);
    };
    addLabel(tr("Resolution"), widths.resolution);
    addLabel(tr("Duration"), widths.duration);
    addLabel(tr("Size"), widths.size);
    addLabel(tr("Action"), Action);
}

QPushButton *HistoryHeader::createButton(const char *name, const QString &text)
{
    auto *button = new QPushButton(text, this);
    button->setObjectName(QLatin1String(name));
    button->setProperty("flat", true);
    button->setProperty("columnHeader", true);
    button->setToolTip(tr("Sort by this column"));
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
    m_date->setAccessibleDescription(byDate ? tr("Sorts the list") : QString());
    m_fileName->setAccessibleDescription(byDate ? QString() : tr("Sorts the list"));
}

} // namespace velmora
