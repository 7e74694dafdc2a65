// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/editor/BusyNote.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVariant>

namespace velmora
{

namespace
{

constexpr int kDelay = 300; // ms

} // namespace

BusyNote::BusyNote(QWidget *parent)
    : QFrame(parent), m_text(new QLabel(this)), m_bar(new QProgressBar(this)),
      m_cancel(new QPushButton(this))
{
    setProperty("card", true);
    m_text->setObjectName(QStringLiteral("lblBusy"));
    m_bar->setObjectName(QStringLiteral("busyBar"));
    m_cancel->setObjectName(QStringLiteral("btnCancelBusy"));
    m_cancel->setProperty("flat", true);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(16, 4, 4, 4);
    row->setSpacing(16);
    row->addWidget(m_text, 1);
    row->addWidget(m_bar, 1);
    row->addWidget(m_cancel);
    m_delay.setSingleShot(true);
    m_delay.setInterval(kDelay);
    connect(&m_delay, &QTimer::timeout, this, &QWidget::show);
    connect(m_cancel, &QPushButton::clicked, this, &BusyNote::cancelClicked);
    retranslate();
    hide();
}

void BusyNote::retranslate()
{
    m_bar->setAccessibleName(tr("Progress"));
    m_cancel->setText(tr("CANCEL"));
    m_cancel->setToolTip(tr("Stop and leave everything as it was"));
}

void BusyNote::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QFrame::changeEvent(event);
}

void BusyNote::begin(const QString &text)
{
    setProgress(text, 0, 0);
    m_delay.start();
}

void BusyNote::setProgress(const QString &text, int done, int count)
{
    m_text->setText(text);
    m_bar->setRange(0, count);
    m_bar->setValue(done);
}

void BusyNote::end()
{
    m_delay.stop();
    hide();
}

} // namespace velmora
