// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/main/HelpDialog.h"

#include <QAction>
#include <QGridLayout>
#include <QKeySequence>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>
#include <QVariant>
#include <QVector>

namespace velmora
{

namespace
{

struct Shortcut {
    QKeySequence keys;
    QString text;
};

QVector<Shortcut> shortcutsOf(const QList<QAction *> &actions)
{
    QVector<Shortcut> shortcuts;
    for (const QAction *action : actions) {
        QString text = action->text();
        text.remove(QLatin1Char('&')).remove(QLatin1String("..."));
        if (!action->shortcut().isEmpty() && !text.isEmpty())
            shortcuts.append({action->shortcut(), text});
    }
    return shortcuts;
}

/// Keys of the editor page that are no actions.
QVector<Shortcut> fixedShortcuts()
{
    return {{Qt::CTRL + Qt::Key_Return, HelpDialog::tr("Create the video, or save a text")},
            {Qt::CTRL + Qt::Key_P, HelpDialog::tr("Preview the whole slideshow")},
            {Qt::Key_Space, HelpDialog::tr("Play or pause the preview")},
            {Qt::Key_Left, HelpDialog::tr("Go back in the preview")},
            {Qt::Key_Right, HelpDialog::tr("Go forward in the preview")},
            {Qt::Key_F, HelpDialog::tr("Show the preview on the full screen")},
            {Qt::Key_M, HelpDialog::tr("Mute the preview")},
            {Qt::Key_F5, HelpDialog::tr("Play the effect of a text")},
            {Qt::Key_Escape, HelpDialog::tr("Leave without saving")}};
}

void addHeading(QGridLayout *grid, const QString &text)
{
    auto *label = new QLabel(text);
    label->setProperty("heading", true);
    label->setContentsMargins(0, grid->rowCount() > 1 ? 16 : 0, 0, 4);
    grid->addWidget(label, grid->rowCount(), 0, 1, 2);
}

void addShortcuts(QGridLayout *grid, const QVector<Shortcut> &shortcuts)
{
    for (const Shortcut &shortcut : shortcuts) {
        const int row = grid->rowCount();
        auto *keys = new QLabel(shortcut.keys.toString(QKeySequence::NativeText));
        keys->setProperty("keys", true);
        grid->addWidget(keys, row, 0, Qt::AlignLeft);
        grid->addWidget(new QLabel(shortcut.text), row, 1);
    }
}

} // namespace

HelpDialog::HelpDialog(const QList<QAction *> &windowActions, const QList<QAction *> &editorActions,
                       bool hasManual, QWidget *parent)
    : CorDialog(parent)
{
    setObjectName(QStringLiteral("helpDialog"));
    setWindowTitle(tr("Help"));
    auto *page = new QWidget;
    auto *pageLayout = new QVBoxLayout(page);
    pageLayout->setContentsMargins(0, 0, 12, 0);
    pageLayout->setSpacing(16);
    pageLayout->addWidget(createSteps());
    pageLayout->addWidget(createShortcuts(windowActions, editorActions));
    pageLayout->addStretch();
    auto *scroll = new QScrollArea;
    scroll->setObjectName(QStringLiteral("scrollHelp"));
    scroll->setAccessibleName(tr("Help"));
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidget(page);
    auto *layout = new QVBoxLayout(content());
    layout->setContentsMargins(24, 8, 24, 24);
    layout->setSpacing(16);
    layout->addWidget(scroll, 1);
    layout->addWidget(createButtons(hasManual));
    resize(680, 640);
}

QWidget *HelpDialog::createSteps()
{
    auto *card = new QFrame;
    card->setProperty("card", true);
    auto *layout = new QVBoxLayout(card);
    layout->setContentsMargins(16, 12, 16, 12);
    layout->setSpacing(8);
    auto *heading = new QLabel(tr("From photos to a video"));
    heading->setProperty("heading", true);
    layout->addWidget(heading);
    const QStringList steps = {
        tr("1. Add photos or folders, with the buttons or by dropping them on the window."),
        tr("2. Put them in order by dragging, and choose times and transitions."),
        tr("3. Add texts to slides and music to the slideshow, and look at the preview."),
        tr("4. Choose a name and a format, and press CREATE."),
        tr("5. Watch, upload or burn the video from the history.")};
    for (const QString &step : steps) {
        auto *label = new QLabel(step);
        label->setWordWrap(true);
        layout->addWidget(label);
    }
    return card;
}

QWidget *HelpDialog::createShortcuts(const QList<QAction *> &windowActions,
                                     const QList<QAction *> &editorActions)
{
    auto *card = new QFrame;
    card->setProperty("card", true);
    auto *grid = new QGridLayout(card);
    grid->setContentsMargins(16, 12, 16, 16);
    grid->setHorizontalSpacing(16);
    grid->setVerticalSpacing(6);
    grid->setColumnStretch(1, 1);
    grid->setColumnMinimumWidth(0, 128);
    addHeading(grid, tr("Keyboard shortcuts"));
    addShortcuts(grid, shortcutsOf(windowActions));
    addHeading(grid, tr("In the editor"));
    addShortcuts(grid, shortcutsOf(editorActions) + fixedShortcuts());
    return card;
}

QWidget *HelpDialog::createButtons(bool hasManual)
{
    auto *row = new QWidget;
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    layout->addStretch();
    if (hasManual) {
        auto *manual = new QPushButton(tr("OPEN MANUAL"));
        manual->setObjectName(QStringLiteral("btnManual"));
        manual->setAutoDefault(false);
        connect(manual, &QPushButton::clicked, this, &HelpDialog::manualClicked);
        layout->addWidget(manual);
    }
    auto *close = new QPushButton(tr("CLOSE"));
    close->setObjectName(QStringLiteral("btnClose"));
    close->setMinimumWidth(96);
    close->setDefault(true);
    close->setProperty("primary", true);
    connect(close, &QPushButton::clicked, this, &QDialog::accept);
    layout->addWidget(close);
    return row;
}

} // namespace velmora
