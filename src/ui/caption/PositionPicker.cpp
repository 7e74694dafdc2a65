// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/caption/PositionPicker.h"

#include "chrome/Theme.h"

#include <QButtonGroup>
#include <QEvent>
#include <QGridLayout>
#include <QPainter>
#include <QPushButton>
#include <QVariant>

namespace velmora
{

namespace
{

constexpr int kColumns = 3;
constexpr int kCount = 9;
constexpr int kCentre = 4;
constexpr QSize kPictureSize(160, 90); // px

struct Place {
    const char *objectName;
    const char *text;
};

constexpr Place kPlaces[kCount] = {
    {"btnLeftTop", QT_TRANSLATE_NOOP("velmora::PositionPicker", "Top left")},
    {"btnCenterTop", QT_TRANSLATE_NOOP("velmora::PositionPicker", "Top centre")},
    {"btnRightTop", QT_TRANSLATE_NOOP("velmora::PositionPicker", "Top right")},
    {"btnLeftCenter", QT_TRANSLATE_NOOP("velmora::PositionPicker", "Centre left")},
    {"btnCenterCenter", QT_TRANSLATE_NOOP("velmora::PositionPicker", "Centre")},
    {"btnRightCenter", QT_TRANSLATE_NOOP("velmora::PositionPicker", "Centre right")},
    {"btnLeftBottom", QT_TRANSLATE_NOOP("velmora::PositionPicker", "Bottom left")},
    {"btnCenterBottom", QT_TRANSLATE_NOOP("velmora::PositionPicker", "Bottom centre")},
    {"btnRightBottom", QT_TRANSLATE_NOOP("velmora::PositionPicker", "Bottom right")},
};

/// Lines of text at the side of the frame that the column stands for.
QIcon textIcon(int position)
{
    static const char *const names[kColumns] = {"text-left", "text-center", "text-right"};
    return Theme::icon(QLatin1String(names[position % kColumns]));
}

} // namespace

PositionPicker::PositionPicker(QWidget *parent) : QFrame(parent), m_buttons(new QButtonGroup(this))
{
    setFixedSize(kPictureSize);
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(4, 4, 4, 4);
    grid->setSpacing(2);
    for (int i = 0; i < kCount; ++i) {
        auto *button = new QPushButton(this);
        button->setObjectName(QLatin1String(kPlaces[i].objectName));
        button->setProperty("cell", true);
        button->setCheckable(true);
        button->setAutoDefault(false);
        button->setIconSize({24, 24});
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
        connect(button, &QPushButton::toggled, button,
                [button, i](bool checked) { button->setIcon(checked ? textIcon(i) : QIcon()); });
        m_buttons->addButton(button, i);
        grid->addWidget(button, i / kColumns, i % kColumns);
    }
    setPosition(kCentre);
    connect(m_buttons, &QButtonGroup::idClicked, this, &PositionPicker::positionChosen);
    retranslate();
}

int PositionPicker::position() const
{
    return m_buttons->checkedId();
}

void PositionPicker::setPosition(int position)
{
    QAbstractButton *button = m_buttons->button(position);
    (button ? button : m_buttons->button(kCentre))->setChecked(true);
}

void PositionPicker::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    Theme::icon(QStringLiteral("textposition")).paint(&painter, rect());
}

void PositionPicker::changeEvent(QEvent *event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void PositionPicker::retranslate()
{
    for (int i = 0; i < kCount; ++i) {
        m_buttons->button(i)->setToolTip(tr(kPlaces[i].text));
        m_buttons->button(i)->setAccessibleName(tr(kPlaces[i].text));
    }
}

} // namespace velmora
