// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/HintLabel.h"

#include "chrome/BalancedText.h"

#include <QStyle>
#include <QStylePainter>

namespace velmora
{

HintLabel::HintLabel(QWidget *parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignCenter);
    setWordWrap(true);
}

void HintLabel::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    drawFrame(&painter);
    painter.drawItemText(BalancedText::part(fontMetrics(), contentsRect(), text()),
                         Qt::AlignCenter | Qt::TextWordWrap, palette(), isEnabled(), text(),
                         foregroundRole());
}

} // namespace velmora
