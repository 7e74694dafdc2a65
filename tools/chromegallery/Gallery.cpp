// SPDX-License-Identifier: GPL-3.0-or-later
#include "chromegallery/Gallery.h"

#include "chrome/DropArea.h"
#include "chrome/MessageDialog.h"
#include "chrome/QPopupButton.h"
#include "chrome/QTableViewEx.h"
#include "chrome/QTextEditEx.h"
#include "chrome/Theme.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QRadioButton>
#include <QSlider>
#include <QSpinBox>
#include <QStandardItemModel>
#include <QToolButton>
#include <QVBoxLayout>

namespace velmora
{

namespace
{

QFrame *createCard(const QString &heading, QVBoxLayout *&layout)
{
    auto *card = new QFrame;
    card->setProperty("card", true);
    layout = new QVBoxLayout(card);
    layout->setContentsMargins(16, 16, 16, 16);
    layout->setSpacing(12);
    auto *label = new QLabel(heading);
    label->setProperty("heading", true);
    layout->addWidget(label);
    return card;
}

QPushButton *createButton(const QString &text, const char *variant, const QString &icon = {})
{
    auto *button = new QPushButton(text);
    if (variant)
        button->setProperty(variant, true);
    if (!icon.isEmpty())
        button->setIcon(Theme::icon(icon));
    button->setIconSize({20, 20});
    return button;
}

QStandardItemModel *createRows(QObject *parent)
{
    auto *model = new QStandardItemModel(6, 4, parent);
    model->setHorizontalHeaderLabels({QStringLiteral("#"), QStringLiteral("Time"),
                                      QStringLiteral("Transition"), QStringLiteral("Text")});
    for (int row = 0; row < model->rowCount(); ++row) {
        const QStringList texts = {QString::number(row + 1), QStringLiteral("3 sec"),
                                   QStringLiteral("Cross fade"), QStringLiteral("Morning walk")};
        for (int column = 0; column < texts.size(); ++column)
            model->setItem(row, column, new QStandardItem(texts.at(column)));
    }
    return model;
}

void moveRows(QStandardItemModel &model, const QVector<int> &rows, int before)
{
    QList<QList<QStandardItem *>> moved;
    for (int i = rows.size() - 1; i >= 0; --i) {
        moved.prepend(model.takeRow(rows.at(i)));
        if (rows.at(i) < before)
            --before;
    }
    for (const QList<QStandardItem *> &row : qAsConst(moved))
        model.insertRow(before++, row);
}

} // namespace

Gallery::Gallery()
{
    setWindowTitle(QStringLiteral("Holidays.json[*] - Velmora"));
    setWindowModified(true);
    auto *page = new QWidget;
    auto *grid = new QGridLayout(page);
    grid->setContentsMargins(24, 8, 24, 24);
    grid->setSpacing(16);
    grid->addWidget(createButtons(), 0, 0);
    grid->addWidget(createFields(), 0, 1);
    grid->addWidget(createTables(), 1, 0);
    grid->addWidget(createStart(), 1, 1);
    setContent(page);
    resize(1180, 860);
}

QWidget *Gallery::createButtons()
{
    QVBoxLayout *layout = nullptr;
    QFrame *card = createCard(QStringLiteral("Buttons"), layout);
    auto *row = new QHBoxLayout;
    row->addWidget(createButton(QStringLiteral("CREATE"), "primary", QStringLiteral("film-white")));
    row->addWidget(createButton(QStringLiteral("PREVIEW"), nullptr, QStringLiteral("preview")));
    row->addWidget(createButton(QStringLiteral("DELETE"), "danger"));
    auto *disabled = createButton(QStringLiteral("UPLOAD"), "primary");
    disabled->setEnabled(false);
    row->addWidget(disabled);
    layout->addLayout(row);
    auto *tools = new QHBoxLayout;
    tools->setSpacing(4);
    for (const char *name : {"add-photo", "add-folder", "history", "settings", "help"})
        tools->addWidget(
            createButton(QString::fromLatin1(name), "flat", QString::fromLatin1(name)));
    layout->addLayout(tools);
    auto *icons = new QHBoxLayout;
    for (const char *name :
         {"up", "down", "shuffle", "AB-down", "rotate", "delete", "repeat", "mute", "fullscreen"}) {
        auto *button = new QToolButton;
        button->setIcon(Theme::icon(QString::fromLatin1(name), true));
        button->setIconSize({24, 24});
        button->setCheckable(true);
        button->setChecked(qstrcmp(name, "repeat") == 0);
        icons->addWidget(button);
    }
    icons->addStretch();
    layout->addLayout(icons);
    auto *values = new QHBoxLayout;
    auto *time = new QPopupButton;
    time->setValues({{QStringLiteral("1 sec"), 1}, {QStringLiteral("3 sec"), 3}});
    time->setValue(3);
    auto *size = new QPopupButton;
    size->setValue(QStringLiteral("1920x1080"));
    auto *off = new QPopupButton;
    off->setValue(QStringLiteral("Cross fade"));
    off->setEnabled(false);
    for (QWidget *widget :
         {static_cast<QWidget *>(time), static_cast<QWidget *>(size), static_cast<QWidget *>(off)})
        values->addWidget(widget);
    layout->addLayout(values);
    layout->addStretch();
    return card;
}

QWidget *Gallery::createFields()
{
    QVBoxLayout *layout = nullptr;
    QFrame *card = createCard(QStringLiteral("Fields"), layout);
    auto *grid = new QGridLayout;
    grid->setSpacing(12);
    grid->addWidget(new QLineEdit(QStringLiteral("sshow_2026-11-24_151500")), 0, 0);
    auto *format = new QComboBox;
    format->addItems({QStringLiteral(".mp4"), QStringLiteral(".webm")});
    grid->addWidget(format, 0, 1);
    auto *check = new QCheckBox(QStringLiteral("Scale to fit"));
    check->setChecked(true);
    grid->addWidget(check, 1, 0);
    grid->addWidget(new QCheckBox(QStringLiteral("Original ratio")), 1, 1);
    auto *radio = new QRadioButton(QStringLiteral("Plays everywhere"));
    radio->setChecked(true);
    grid->addWidget(radio, 2, 0);
    grid->addWidget(new QSpinBox, 2, 1);
    auto *slider = new QSlider(Qt::Horizontal);
    slider->setValue(40);
    grid->addWidget(slider, 3, 0);
    auto *bar = new QProgressBar;
    bar->setValue(62);
    grid->addWidget(bar, 3, 1);
    auto *text = new QTextEditEx;
    text->setPlaceholderText(QStringLiteral("Text here"));
    text->setMaximumHeight(64);
    grid->addWidget(text, 4, 0, 1, 2);
    auto *note = new QLabel(QStringLiteral("Total: 12 tracks (0:42:10)"));
    note->setProperty("secondary", true);
    grid->addWidget(note, 5, 0);
    auto *error = new QLabel(QStringLiteral("The file is missing."));
    error->setProperty("error", true);
    grid->addWidget(error, 5, 1);
    layout->addLayout(grid);
    return card;
}

QWidget *Gallery::createTables()
{
    auto *page = new QWidget;
    auto *layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(16);
    auto *filled = new QTableViewEx;
    QStandardItemModel *model = createRows(filled);
    filled->setModel(model);
    connect(filled, &QTableViewEx::rowsMoved, model,
            [model](const QVector<int> &rows, int before) { moveRows(*model, rows, before); });
    filled->verticalHeader()->setDefaultSectionSize(40);
    filled->horizontalHeader()->setStretchLastSection(true);
    filled->selectRow(1);
    layout->addWidget(filled, 1);
    auto *empty = new QTableViewEx;
    empty->setModel(new QStandardItemModel(empty));
    empty->setEmptyState(Theme::icon(QStringLiteral("audio")).pixmap(128, 96),
                         QStringLiteral("Drag & drop audio files to create a playlist"));
    layout->addWidget(empty, 1);
    return page;
}

QWidget *Gallery::createStart()
{
    auto *area = new DropArea;
    area->setPrompt(QStringLiteral("Drop your photos here"));
    area->setHint(QStringLiteral("or choose photos and folders"));
    area->addWidget(
        createButton(QStringLiteral("Add Photo"), "primary", QStringLiteral("add-photo-white")));
    return area;
}

QWidget *Gallery::createMessage(QWidget *parent)
{
    MessageDialog::Message message;
    message.kind = MessageDialog::Kind::Question;
    message.title = QStringLiteral("Not all files exist");
    message.text = QStringLiteral("Not all files exist, do you want to resume the project?");
    message.checkText = QStringLiteral("Also delete the video file");
    message.buttons = QStringList{QStringLiteral("RESUME"), QStringLiteral("CANCEL")};
    return new MessageDialog(message, parent);
}

} // namespace velmora
