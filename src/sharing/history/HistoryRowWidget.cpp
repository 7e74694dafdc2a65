// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/history/HistoryRowWidget.h"

#include "app/AppSettings.h"
#include "chrome/Theme.h"
#include "project/documents/ProjectFile.h"
#include "project/slides/ProjectItemFirst.h"
#include "sharing/history/HistoryHeader.h"

#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QStyle>
#include <QToolButton>

namespace velmora
{

namespace
{

constexpr double kMegabyte = 1048576;

QString durationText(qint64 milliseconds)
{
    const qint64 seconds = (milliseconds + 500) / 1000;
    const QLatin1Char zero('0');
    return HistoryRowWidget::tr("%1:%2:%3")
        .arg(seconds / 3600, 2, 10, zero)
        .arg(seconds / 60 % 60, 2, 10, zero)
        .arg(seconds % 60, 2, 10, zero);
}

/// At least one tenth, so that no video looks empty.
QString sizeText(qint64 bytes)
{
    const double megabytes = static_cast<double>(bytes) / kMegabyte;
    const QString number = megabytes < 10
                               ? QString::number(bytes > 0 ? qMax(megabytes, 0.1) : 0.0, 'f', 1)
                               : QString::number(qRound64(megabytes));
    return HistoryRowWidget::tr("%1 MB").arg(number);
}

/// Fills the picture's place, with round corners.
QPixmap card(const QImage &picture, qreal ratio)
{
    using namespace HistoryColumns;
    QPixmap pixmap(QSize(PictureWidth, PictureHeight) * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    const QRectF area(0, 0, PictureWidth, PictureHeight);
    QPainterPath path;
    path.addRoundedRect(area, 4, 4);
    painter.setClipPath(path);
    painter.fillRect(area, QColor(Theme::Border));
    if (picture.isNull()) {
        Theme::icon(QStringLiteral("film")).paint(&painter, area.toRect(), Qt::AlignCenter);
        return pixmap;
    }
    const QSizeF size = QSizeF(picture.size()).scaled(area.size(), Qt::KeepAspectRatioByExpanding);
    QRectF target(QPointF(), size);
    target.moveCenter(area.center());
    painter.drawImage(target, picture);
    return pixmap;
}

} // namespace

QString starterText(const ProjectFile &project)
{
    for (const ProjectItem *item : project.items()) {
        if (qobject_cast<const ProjectItemFirst *>(item))
            return item->caption().text.simplified();
    }
    return {};
}

HistoryRowWidget::HistoryRowWidget(QWidget *parent) : QWidget(parent)
{
    using namespace HistoryColumns;
    setObjectName(QStringLiteral("historyRow"));
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(Margin, 0, Margin, 0);
    layout->setSpacing(Gap);
    m_picture = createLabel(layout, "lblPicture");
    m_picture->setFixedWidth(PictureWidth);
    m_date = createLabel(layout, "lblDate");
    m_fileName = createLabel(layout, "lblFileName");
    m_fileName->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    layout->setStretchFactor(m_fileName, 1);
    m_resolution = createLabel(layout, "lblResolution");
    m_duration = createLabel(layout, "lblDuration");
    m_size = createLabel(layout, "lblSize");
    createButtons(layout);
    retranslate();
    setPicture({});
    setSelected(false);
}

QLabel *HistoryRowWidget::createLabel(QHBoxLayout *layout, const char *name)
{
    auto *label = new QLabel(this);
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::PlainText);
    layout->addWidget(label);
    return label;
}

void HistoryRowWidget::retranslate()
{
    const HistoryColumns::Widths widths = HistoryHeader::columnWidths();
    m_date->setFixedWidth(widths.date);
    m_resolution->setFixedWidth(widths.resolution);
    m_duration->setFixedWidth(widths.duration);
    m_size->setFixedWidth(widths.size);
    const auto name = [](QToolButton *button, const QString &text) {
        button->setToolTip(text);
        button->setAccessibleName(text);
    };
    name(m_open, tr("Open the project in the editor"));
    name(m_preview, tr("Play the video"));
    name(m_burn, tr("Burn the video to a disc"));
    name(m_delete, tr("Remove the video from the history"));
}

void HistoryRowWidget::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
        setEntry(m_entry);
    }
    QWidget::changeEvent(event);
}

void HistoryRowWidget::createButtons(QHBoxLayout *layout)
{
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(4);
    m_open = createButton(buttons, "btnOpen");
    m_preview = createButton(buttons, "btnPreview");
    m_burn = createButton(buttons, "btnBurn");
    m_delete = createButton(buttons, "btnDelete");
    buttons->addStretch();
    auto *holder = new QWidget(this);
    holder->setLayout(buttons);
    buttons->setContentsMargins(0, 0, 0, 0);
    holder->setFixedWidth(HistoryColumns::Action);
    layout->addWidget(holder);
    connect(m_open, &QToolButton::clicked, this, &HistoryRowWidget::onBtnOpenClicked);
    connect(m_preview, &QToolButton::clicked, this, &HistoryRowWidget::onBtnPreviewClicked);
    connect(m_burn, &QToolButton::clicked, this, &HistoryRowWidget::onBtnBurnClicked);
    connect(m_delete, &QToolButton::clicked, this, &HistoryRowWidget::onBtnDeleteClicked);
}

QToolButton *HistoryRowWidget::createButton(QHBoxLayout *layout, const char *name)
{
    auto *button = new QToolButton(this);
    button->setObjectName(QLatin1String(name));
    button->setIconSize({24, 24});
    layout->addWidget(button);
    return button;
}

void HistoryRowWidget::setEntry(const HistoryEntry &entry)
{
    m_entry = entry;
    const QString path = QDir::toNativeSeparators(entry.fileName);
    m_fileName->setToolTip(path);
    m_fileName->setAccessibleName(QFileInfo(entry.fileName).fileName());
    setAccessibleName(m_fileName->accessibleName());
    m_resolution->setText(resolutionToText(entry.project->resolution()));
    m_duration->setText(durationText(entry.facts.duration));
    showFacts();
    elideName();
}

void HistoryRowWidget::showFacts()
{
    const VideoFacts &facts = m_entry.facts;
    const bool removed = facts.known && !facts.exists;
    m_date->setText(facts.date.toString(QStringLiteral("dd.MM.yyyy")));
    m_size->setText(removed ? tr("removed") : facts.known ? sizeText(facts.size) : QString());
    m_size->setToolTip(removed ? tr("The video file does not exist any more.") : QString());
    for (QLabel *label : {m_date, m_fileName, m_resolution, m_duration, m_size}) {
        label->setProperty("secondary", removed || label != m_fileName);
        label->setProperty("error", removed && label == m_size);
        label->style()->unpolish(label);
        label->style()->polish(label);
    }
    m_preview->setEnabled(!removed);
    m_burn->setEnabled(!removed);
}

void HistoryRowWidget::setPicture(const QImage &picture)
{
    m_picture->setPixmap(card(picture, devicePixelRatioF()));
}

void HistoryRowWidget::setSelected(bool selected)
{
    const QString look = selected ? QStringLiteral("%1-selected") : QStringLiteral("%1");
    m_open->setIcon(Theme::icon(look.arg(QStringLiteral("edit"))));
    m_preview->setIcon(Theme::icon(look.arg(QStringLiteral("play"))));
    m_burn->setIcon(Theme::icon(look.arg(QStringLiteral("disc"))));
    m_delete->setIcon(Theme::icon(look.arg(QStringLiteral("delete"))));
    for (QToolButton *button : {m_open, m_preview, m_burn, m_delete})
        button->setFocusPolicy(selected ? Qt::StrongFocus : Qt::NoFocus);
}

void HistoryRowWidget::elideName()
{
    m_fileName->setText(m_fileName->fontMetrics().elidedText(m_fileName->accessibleName(),
                                                             Qt::ElideMiddle, m_fileName->width()));
}

void HistoryRowWidget::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    layout()->activate();
    elideName();
}

void HistoryRowWidget::onBtnOpenClicked()
{
    emit openProject(m_entry.fileName);
}

void HistoryRowWidget::onBtnPreviewClicked()
{
    emit previewProject(m_entry.fileName);
}

void HistoryRowWidget::onBtnDeleteClicked()
{
    emit deleteProject(m_entry.fileName);
}

void HistoryRowWidget::onBtnBurnClicked()
{
    emit burnProject(m_entry.fileName, starterText(*m_entry.project));
}

} // namespace velmora
