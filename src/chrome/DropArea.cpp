// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/DropArea.h"

#include "chrome/HintLabel.h"
#include "chrome/LocalFiles.h"
#include "chrome/Theme.h"

#include <QDragEnterEvent>
#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>
#include <QVariant>

namespace velmora
{

DropArea::DropArea(QWidget *parent)
    : QFrame(parent), m_picture(new QLabel(this)), m_prompt(new HintLabel(this)),
      m_hint(new HintLabel(this))
{
    setAcceptDrops(true);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    m_prompt->setProperty("pageTitle", true);
    m_hint->setProperty("secondary", true);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(32, 32, 32, 32);
    layout->setSpacing(8);
    layout->addStretch();
    m_picture->setAlignment(Qt::AlignCenter);
    layout->addWidget(m_picture);
    layout->addSpacing(8);
    layout->addWidget(m_prompt);
    layout->addWidget(m_hint);
    layout->addStretch();
}

void DropArea::setPrompt(const QString &text)
{
    m_prompt->setText(text);
    setAccessibleName(text);
}

void DropArea::setHint(const QString &text)
{
    m_hint->setText(text);
    setAccessibleDescription(text);
}

void DropArea::addWidget(QWidget *widget)
{
    auto *box = static_cast<QVBoxLayout *>(layout());
    box->insertSpacing(box->count() - 1, 16);
    box->insertWidget(box->count() - 1, widget, 0, Qt::AlignHCenter);
    widget->setCursor(Qt::ArrowCursor);
}

void DropArea::setLit(bool lit)
{
    m_lit = lit;
    update();
}

void DropArea::dragEnterEvent(QDragEnterEvent *event)
{
    if (localFiles(*event->mimeData()).isEmpty())
        return;
    event->setDropAction(Qt::CopyAction);
    event->accept();
    setLit(true);
}

void DropArea::dragLeaveEvent(QDragLeaveEvent *)
{
    setLit(false);
}

void DropArea::dropEvent(QDropEvent *event)
{
    setLit(false);
    const QStringList files = localFiles(*event->mimeData());
    if (files.isEmpty())
        return;
    event->setDropAction(Qt::CopyAction);
    event->accept();
    emit dropBegin();
    for (const QString &file : files)
        emit fileDropped(file);
    emit dropEnd();
}

void DropArea::paintEvent(QPaintEvent *)
{
    constexpr int kRadius = 16; // px
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QRgb line = Theme::FieldBorder;
    QRgb fill = Theme::Surface;
    if (m_lit || hasFocus())
        line = Theme::Accent;
    else if (m_hovered)
        line = Theme::Primary;
    if (m_lit)
        fill = Theme::AccentPale;
    else if (m_hovered)
        fill = Theme::AccentFaint;
    QPen pen(QColor(line), 2, Qt::CustomDashLine, Qt::RoundCap);
    pen.setDashPattern({4, 4});
    if (m_lit)
        pen.setStyle(Qt::SolidLine);
    painter.setPen(pen);
    painter.setBrush(QColor(fill));
    painter.drawRoundedRect(QRectF(rect()).adjusted(2, 2, -2, -2), kRadius, kRadius);
}

void DropArea::keyPressEvent(QKeyEvent *event)
{
    const int key = event->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space)
        emit activated();
    else
        QFrame::keyPressEvent(event);
}

void DropArea::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && rect().contains(event->pos()))
        emit activated();
}

void DropArea::enterEvent(QEvent *event)
{
    m_hovered = true;
    update();
    QFrame::enterEvent(event);
}

/// The picture is in proportion to the place that it has.
void DropArea::resizeEvent(QResizeEvent *event)
{
    constexpr int kSpacious = 900; // px
    const bool isSpacious = height() >= kSpacious;
    m_picture->setPixmap(isSpacious ? Theme::icon(QStringLiteral("photos-large")).pixmap(416, 240)
                                    : Theme::icon(QStringLiteral("photos")).pixmap(208, 120));
    QFrame::resizeEvent(event);
}

void DropArea::leaveEvent(QEvent *event)
{
    m_hovered = false;
    update();
    QFrame::leaveEvent(event);
}

} // namespace velmora
