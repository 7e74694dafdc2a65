// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/main/ToolRow.h"

#include "chrome/Theme.h"
#include "ui/main/MainMenu.h"
#include "ui/main/ShortcutKeys.h"
#include "ui_ToolRow.h"

#include <QEvent>

namespace velmora
{

ToolRow::ToolRow(const MainMenu &menu, QWidget *parent)
    : QFrame(parent), m_ui(std::make_unique<Ui::ToolRow>()), m_menu(menu)
{
    m_ui->setupUi(this);
    // The keys stay where they are wanted again after the dialog that a click opens.
    const QList<QPushButton *> buttons = findChildren<QPushButton *>();
    for (QPushButton *button : buttons)
        button->setFocusPolicy(Qt::TabFocus);
    const auto bind = [this](QPushButton *button, QAction *action, const char *icon) {
        button->setIcon(Theme::icon(QLatin1String(icon)));
        connect(button, &QPushButton::clicked, action, &QAction::trigger);
        connect(action, &QAction::changed, this, &ToolRow::updateButtons);
    };
    bind(m_ui->btnAddFolder, menu.addFolder, "add-folder");
    bind(m_ui->btnHistory, menu.history, "history");
    bind(m_ui->btnSettings, menu.settings, "settings");
    connect(menu.addPhoto, &QAction::changed, this, &ToolRow::updateButtons);
    connect(m_ui->btnAddPhoto, &QPushButton::clicked, this,
            [this] { (m_historyShown ? m_menu.back : m_menu.addPhoto)->trigger(); });
    m_ui->btnHelp->setIcon(Theme::icon(QStringLiteral("help")));
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

void ToolRow::setLastVideoKnown(bool known)
{
    m_ui->lblLastProject->setVisible(known);
}

void ToolRow::updateButtons()
{
    m_ui->btnAddPhoto->setEnabled(m_historyShown || m_menu.addPhoto->isEnabled());
    m_ui->btnAddFolder->setEnabled(m_menu.addFolder->isEnabled());
    m_ui->btnHistory->setEnabled(m_menu.history->isEnabled());
    m_ui->btnSettings->setEnabled(m_menu.settings->isEnabled());
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
