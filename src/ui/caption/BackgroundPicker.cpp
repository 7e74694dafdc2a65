// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/caption/BackgroundPicker.h"

#include "chrome/Theme.h"
#include "project/slides/TitleBackground.h"
#include "ui/caption/SelectedColorButtonEffect.h"

#include <QButtonGroup>
#include <QEvent>
#include <QPainter>
#include <QPushButton>
#include <QStyle>

namespace velmora
{

namespace
{

constexpr QSize kButtonSize(44, 28); // px
constexpr int kGap = 4;              // px
constexpr int kLeastColumns = 5;

/// The most columns that fit, of those that fill all rows.
int columnsFor(int width)
{
    for (const int columns : {15, 10, 6}) {
        if (columns * (kButtonSize.width() + kGap) - kGap <= width)
            return columns;
    }
    return kLeastColumns;
}

QSize sizeFor(int columns)
{
    const int rows = kTitleBackgroundCount / columns;
    return {columns * (kButtonSize.width() + kGap) - kGap,
            rows * (kButtonSize.height() + kGap) - kGap};
}

/// A fine line that sets pale pictures off from the window.
void paintEdge(QImage &picture)
{
    QColor line(Theme::Text);
    line.setAlphaF(0.25);
    QPainter painter(&picture);
    painter.setPen(line);
    painter.drawRect(QRect(QPoint(0, 0), kButtonSize).adjusted(0, 0, -1, -1));
}

QIcon pictureOf(int index)
{
    QIcon icon;
    for (const int scale : {1, 2}) {
        QImage picture = titleBackground(index, kButtonSize * scale, false);
        picture.setDevicePixelRatio(scale);
        paintEdge(picture);
        icon.addPixmap(QPixmap::fromImage(picture));
    }
    return icon;
}

} // namespace

BackgroundPicker::BackgroundPicker(QWidget *parent)
    : QFrame(parent), m_buttons(new QButtonGroup(this))
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    for (int i = 0; i < kTitleBackgroundCount; ++i) {
        auto *button = new QPushButton(this);
        button->setObjectName(QStringLiteral("butColor%1").arg(i + 1, 2, 10, QLatin1Char('0')));
        button->setStyleSheet(QStringLiteral("border: none"));
        button->setCheckable(true);
        button->setAutoDefault(false);
        button->setFixedSize(kButtonSize);
        button->setIconSize(kButtonSize);
        button->setIcon(pictureOf(i));
        m_buttons->addButton(button, i);
        connect(button, &QPushButton::toggled, this, [this, i](bool checked) { mark(i, checked); });
    }
    connect(m_buttons, &QButtonGroup::idClicked, this, &BackgroundPicker::backgroundChosen);
    retranslate();
}

int BackgroundPicker::background() const
{
    return m_buttons->checkedId();
}

void BackgroundPicker::setBackground(int index)
{
    if (QAbstractButton *button = m_buttons->button(index)) {
        button->setChecked(true);
    } else if (QAbstractButton *checked = m_buttons->checkedButton()) {
        m_buttons->setExclusive(false);
        checked->setChecked(false);
        m_buttons->setExclusive(true);
    }
}

void BackgroundPicker::mark(int index, bool marked)
{
    m_buttons->button(index)->setGraphicsEffect(marked ? new SelectedColorButtonEffect : nullptr);
}

QSize BackgroundPicker::sizeHint() const
{
    return sizeFor(10);
}

QSize BackgroundPicker::minimumSizeHint() const
{
    return {sizeFor(kLeastColumns).width(), sizeFor(15).height()};
}

void BackgroundPicker::resizeEvent(QResizeEvent *event)
{
    QFrame::resizeEvent(event);
    const int columns = columnsFor(width());
    setFixedHeight(sizeFor(columns).height());
    for (int i = 0; i < kTitleBackgroundCount; ++i) {
        const QRect place(QPoint(i % columns * (kButtonSize.width() + kGap),
                                 i / columns * (kButtonSize.height() + kGap)),
                          kButtonSize);
        m_buttons->button(i)->setGeometry(QStyle::visualRect(layoutDirection(), rect(), place));
    }
}

void BackgroundPicker::changeEvent(QEvent *event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void BackgroundPicker::retranslate()
{
    for (int i = 0; i < kTitleBackgroundCount; ++i)
        m_buttons->button(i)->setAccessibleName(tr("Background %1").arg(i + 1));
}

} // namespace velmora
