// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/main/ToolRow.h"

#include "chrome/Theme.h"
#include "ui/main/ShortcutKeys.h"
#include "ui_ToolRow.h"

#include <QEvent>

namespace velmora
{

ToolRow::ToolRow(QWidget *parent) : QFrame(parent), m_ui(std::make_unique<Ui::ToolRow>())
{
    m_ui->setupUi(this);
    m_ui->btnAddFolder->setIcon(Theme::icon(QStringLiteral("add-folder")));
    m_ui->btnHistory->setIcon(Theme::icon(QStringLiteral("history")));
    m_ui->btnSettings->setIcon(Theme::icon(QStringLiteral("settings")));
    m_ui->btnHelp->setIcon(Theme::icon(QStringLiteral("help")));
    connect(m_ui->btnAddPhoto, &QPushButton::clicked, this, [this] {
        if (m_historyShown)
            emit backClicked();
        else
            emit addPhotoClicked();
    });
    connect(m_ui->btnAddFolder, &QPushButton::clicked, this, &ToolRow::addFolderClicked);
    connect(m_ui->btnHistory, &QPushButton::clicked, this, &ToolRow::historyClicked);
    connect(m_ui->btnSettings, &QPushButton::clicked, this, &ToolRow::settingsClicked);
    connect(m_ui->btnHelp, &QPushButton::clicked, this, &ToolRow::helpClicked);
    connect(m_ui->lblLastProject, &QLabel::linkActivated, this, &ToolRow::lastProjectClicked);
    setLastVideoKnown(false);
    retranslate();
    updateButtons();
}

ToolRow::~ToolRow() = default;

void ToolRow::setHistoryShown(bool shown)
{
    m_historyShown = shown;
    retranslate();
    updateButtons();
}

void ToolRow::setProjectButtonsEnabled(bool enabled)
{
    m_projectEnabled = enabled;
    updateButtons();
}

void ToolRow::setAddingEnabled(bool enabled)
{
    m_addingEnabled = enabled;
    updateButtons();
}

void ToolRow::setLastVideoKnown(bool known)
{
    m_ui->lblLastProject->setVisible(known);
}

void ToolRow::updateButtons()
{
    m_ui->btnAddPhoto->setEnabled(m_projectEnabled && (m_addingEnabled || m_historyShown));
    m_ui->btnAddFolder->setEnabled(m_projectEnabled && m_addingEnabled);
    m_ui->btnHistory->setEnabled(m_projectEnabled && !m_historyShown);
    m_ui->btnSettings->setEnabled(m_projectEnabled);
    m_ui->btnAddPhoto->setIcon(
        Theme::icon(m_historyShown ? QStringLiteral("back") : QStringLiteral("add-photo")));
}

void ToolRow::retranslate()
{
    m_ui->retranslateUi(this);
    const auto tip = [](QPushButton *button, const QString &text, const QKeySequence &keys) {
        button->setToolTip(ShortcutKeys::withKeys(text, keys));
        button->setAccessibleName(button->text());
        button->setAccessibleDescription(text);
    };
    if (m_historyShown) {
        m_ui->btnAddPhoto->setText(tr("Back"));
        tip(m_ui->btnAddPhoto, tr("Back to the slideshow"), ShortcutKeys::back());
    } else {
        tip(m_ui->btnAddPhoto, tr("Add photos to the slideshow"), ShortcutKeys::addPhoto());
    }
    tip(m_ui->btnAddFolder, tr("Add all photos of a folder"), ShortcutKeys::addFolder());
    tip(m_ui->btnHistory, tr("Show the slideshows made so far"), ShortcutKeys::history());
    tip(m_ui->btnSettings, tr("Change how new slideshows begin"), ShortcutKeys::settings());
    tip(m_ui->btnHelp, tr("Help and keyboard shortcuts"), ShortcutKeys::help());
    m_ui->lblLastProject->setText(tr("Last slideshow: %1")
                                      .arg(QStringLiteral("<a href=\"folder\">%1</a>")
                                               .arg(tr("Open Folder").toHtmlEscaped())));
}

void ToolRow::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QFrame::changeEvent(event);
}

} // namespace velmora
