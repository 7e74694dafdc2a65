// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/caption/ColorBox.h"

#include "chrome/Theme.h"

#include <QColorDialog>
#include <QEvent>
#include <QPainter>

namespace velmora
{

namespace
{

struct NamedColor {
    const char *name;
    QRgb value;
};

constexpr NamedColor kColors[] = {
    {QT_TRANSLATE_NOOP("velmora::ColorBox", "White"), 0xffffffff},
    {QT_TRANSLATE_NOOP("velmora::ColorBox", "Light gray"), 0xffc3c3c3},
    {QT_TRANSLATE_NOOP("velmora::ColorBox", "Dark gray"), 0xff585858},
    {QT_TRANSLATE_NOOP("velmora::ColorBox", "Black"), 0xff000000},
    {QT_TRANSLATE_NOOP("velmora::ColorBox", "Dark red"), 0xff88001b},
    {QT_TRANSLATE_NOOP("velmora::ColorBox", "Red"), 0xffec1c24},
    {QT_TRANSLATE_NOOP("velmora::ColorBox", "Orange"), 0xffff7f27},
    {QT_TRANSLATE_NOOP("velmora::ColorBox", "Gold"), 0xffffca18},
    {QT_TRANSLATE_NOOP("velmora::ColorBox", "Yellow"), 0xfffff200},
    {QT_TRANSLATE_NOOP("velmora::ColorBox", "Sand"), 0xfffdeca6},
    {QT_TRANSLATE_NOOP("velmora::ColorBox", "Brown"), 0xffb97a56},
    {QT_TRANSLATE_NOOP("velmora::ColorBox", "Lime"), 0xffc4ff0e},
    {QT_TRANSLATE_NOOP("velmora::ColorBox", "Green"), 0xff0ed145},
    {QT_TRANSLATE_NOOP("velmora::ColorBox", "Aqua"), 0xff8cfffb},
    {QT_TRANSLATE_NOOP("velmora::ColorBox", "Sky blue"), 0xff00a8f3},
    {QT_TRANSLATE_NOOP("velmora::ColorBox", "Blue"), 0xff3f48cc},
    {QT_TRANSLATE_NOOP("velmora::ColorBox", "Violet"), 0xff8e51c1},
    {QT_TRANSLATE_NOOP("velmora::ColorBox", "Pink"), 0xffffaec8},
};

constexpr int kColorRole = Qt::UserRole;
constexpr int kCustomRole = Qt::UserRole + 1; ///< bool: asks for a colour

} // namespace

ColorBox::ColorBox(QWidget *parent) : QComboBox(parent)
{
    setIconSize({28, 18});
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(6);
    setMaxVisibleItems(24);
    fill();
    connect(this, QOverload<int>::of(&QComboBox::activated), this, &ColorBox::onActivated);
}

void ColorBox::setNoneAllowed(bool allowed)
{
    m_noneAllowed = allowed;
    fill();
}

void ColorBox::fill()
{
    clear();
    if (m_noneAllowed)
        addColor(count(), tr("None"), QColor());
    for (const NamedColor &color : kColors)
        addColor(count(), tr(color.name), QColor(color.value));
    insertSeparator(count());
    addItem(tr("Custom..."));
    setItemData(count() - 1, true, kCustomRole);
    setColor(m_color);
}

void ColorBox::addColor(int index, const QString &text, const QColor &color)
{
    insertItem(index, swatch(color), text);
    setItemData(index, color, kColorRole);
}

void ColorBox::setColor(const QColor &color)
{
    m_color = color;
    const int separator = count() - 2;
    for (int i = 0; i < separator; ++i) {
        const QColor offered = itemData(i, kColorRole).value<QColor>();
        if (offered.isValid() == color.isValid() && offered.rgb() == color.rgb()) {
            setCurrentIndex(i);
            return;
        }
    }
    addColor(separator, color.isValid() ? color.name() : tr("None"), color);
    setCurrentIndex(separator);
}

void ColorBox::onActivated(int index)
{
    QColor color = itemData(index, kColorRole).value<QColor>();
    if (itemData(index, kCustomRole).toBool()) {
        color = QColorDialog::getColor(m_color.isValid() ? m_color : QColor(Qt::black), this,
                                       toolTip());
        if (!color.isValid()) { // cancelled
            setColor(m_color);
            return;
        }
    }
    setColor(color);
    emit colorChosen(color);
}

QIcon ColorBox::swatch(const QColor &color) const
{
    QIcon icon;
    for (const int scale : {1, 2}) {
        QPixmap pixmap(iconSize() * scale);
        pixmap.setDevicePixelRatio(scale);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.setRenderHint(QPainter::Antialiasing);
        const QRectF area = QRectF(QPointF(0, 0), iconSize()).adjusted(0.5, 0.5, -0.5, -0.5);
        painter.setPen(QColor(Theme::FieldBorder));
        painter.setBrush(color.isValid() ? color : QColor(Theme::Surface));
        painter.drawRoundedRect(area, 3, 3);
        if (!color.isValid()) {
            painter.setPen(QPen(QColor(Theme::Danger), 1.5));
            painter.drawLine(area.bottomLeft() + QPointF(3, -3), area.topRight() + QPointF(-3, 3));
        }
        painter.end();
        icon.addPixmap(pixmap);
    }
    return icon;
}

void ColorBox::changeEvent(QEvent *event)
{
    QComboBox::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        fill();
}

} // namespace velmora
