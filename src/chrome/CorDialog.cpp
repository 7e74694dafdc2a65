// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/CorDialog.h"

#include "chrome/TitleBar.h"
#include "chrome/WindowShadow.h"
#include "platform/DesktopComposition.h"

#include <QFrame>
#include <QPainter>
#include <QVBoxLayout>
#include <QVariant>

namespace velmora
{

CorDialog::CorDialog(QWidget *parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint), m_composited(isDesktopComposited()),
      m_outer(new QVBoxLayout(this)), m_frame(new QFrame(this)),
      m_titleBar(new TitleBar(TitleBar::Buttons::CloseOnly, m_frame)),
      m_content(new QWidget(m_frame))
{
    setAttribute(Qt::WA_TranslucentBackground, m_composited);
    m_frame->setObjectName(QStringLiteral("dialogFrame"));
    m_content->setObjectName(QStringLiteral("dialogContent"));
    m_outer->addWidget(m_frame);
    auto *inner = new QVBoxLayout(m_frame);
    inner->setContentsMargins(1, 1, 1, 1);
    inner->setSpacing(0);
    inner->addWidget(m_titleBar);
    inner->addWidget(m_content, 1);
    connect(m_titleBar, &TitleBar::closeRequested, this, &QDialog::reject);
    updateFrame();
}

void CorDialog::updateFrame()
{
    const int margin = m_composited ? WindowShadow::Extent : 0;
    m_outer->setContentsMargins(margin, margin, margin, margin);
    m_frame->setProperty("rounded", m_composited);
}

void CorDialog::paintEvent(QPaintEvent *)
{
    if (!m_composited)
        return;
    QPainter painter(this);
    WindowShadow::paint(painter, m_frame->geometry());
}

void CorDialog::showEvent(QShowEvent *event)
{
    m_composited = testAttribute(Qt::WA_TranslucentBackground) && isDesktopComposited();
    updateFrame();
    QDialog::showEvent(event);
}

} // namespace velmora
