// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/main/StartPage.h"

#include "chrome/DropArea.h"
#include "chrome/Theme.h"
#include "ui/main/MainMenu.h"
#include "ui/main/ShortcutKeys.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>
#include <QVariant>

namespace velmora
{

namespace
{

constexpr int kMargin = 24;    // px
constexpr int kNameWidth = 40; // letters of a slideshow's name

QWidget *createRow(QWidget *parent)
{
    auto *row = new QWidget(parent);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    return row;
}

} // namespace

StartPage::StartPage(const MainMenu &menu, QWidget *parent)
    : QWidget(parent), m_dropArea(new DropArea(this))
{
    setObjectName(QStringLiteral("startPage"));
    m_dropArea->setObjectName(QStringLiteral("dropArea"));
    QWidget *main = createRow(m_dropArea);
    m_addPhoto = addButton(main, "btnStartAddPhoto", "add-photo-white", "primary");
    m_addFolder = addButton(main, "btnStartAddFolder", "add-folder", "");
    m_dropArea->addWidget(main);
    QWidget *more = createRow(this);
    more->layout()->setAlignment(Qt::AlignCenter);
    m_recent = addButton(more, "btnRecent", "repeat-accent", "flat");
    m_open = addButton(more, "btnOpen", "folder-open", "flat");
    m_samples = addButton(more, "btnSamples", "photo", "flat");
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(kMargin, 8, kMargin, 16);
    layout->setSpacing(12);
    layout->addWidget(m_dropArea, 1);
    layout->addWidget(more);

    connect(m_dropArea, &DropArea::activated, menu.addPhoto, &QAction::trigger);
    connect(m_dropArea, &DropArea::dropBegin, this, &StartPage::dropBegin);
    connect(m_dropArea, &DropArea::fileDropped, this, &StartPage::fileDropped);
    connect(m_dropArea, &DropArea::dropEnd, this, &StartPage::dropEnd);
    connect(m_addPhoto, &QPushButton::clicked, menu.addPhoto, &QAction::trigger);
    connect(m_addFolder, &QPushButton::clicked, menu.addFolder, &QAction::trigger);
    connect(m_open, &QPushButton::clicked, menu.open, &QAction::trigger);
    connect(m_recent, &QPushButton::clicked, this, &StartPage::recentClicked);
    connect(m_samples, &QPushButton::clicked, this, &StartPage::samplesClicked);
    m_recent->hide();
    m_samples->hide();
    retranslate();
}

QPushButton *StartPage::addButton(QWidget *row, const char *name, const char *icon,
                                  const char *style)
{
    auto *button = new QPushButton(row);
    button->setObjectName(QLatin1String(name));
    button->setIcon(Theme::icon(QLatin1String(icon)));
    button->setIconSize({24, 24});
    if (*style != '\0')
        button->setProperty(style, true);
    row->layout()->addWidget(button);
    return button;
}

void StartPage::setRecentName(const QString &name)
{
    m_recentName = name;
    m_recent->setVisible(!name.isEmpty());
    retranslate();
}

void StartPage::setSamplesOffered(bool offered)
{
    m_samples->setVisible(offered);
}

void StartPage::retranslate()
{
    m_dropArea->setPrompt(tr("Drop your photos here"));
    m_dropArea->setHint(
        tr("Photos and whole folders become a slideshow with transitions, titles and music."));
    m_addPhoto->setText(tr("Add Photo"));
    m_addFolder->setText(tr("Add Folder"));
    m_open->setText(tr("Open a slideshow"));
    m_samples->setText(tr("Try the sample photos"));
    QString name = m_recentName;
    if (name.size() > kNameWidth)
        name = name.left(kNameWidth - 1) + QChar(0x2026);
    // A button takes a single "&" for the mark of its access key.
    name.replace(QLatin1Char('&'), QLatin1String("&&"));
    m_recent->setText(tr("Continue with %1").arg(name));
    m_recent->setToolTip(tr("Open the last slideshow again"));
    m_open->setToolTip(ShortcutKeys::withKeys(tr("Open a saved slideshow"), ShortcutKeys::open()));
    m_addPhoto->setToolTip(
        ShortcutKeys::withKeys(tr("Add photos to the slideshow"), ShortcutKeys::addPhoto()));
    m_addFolder->setToolTip(
        ShortcutKeys::withKeys(tr("Add all photos of a folder"), ShortcutKeys::addFolder()));
    m_samples->setToolTip(tr("Begin a slideshow with the photos that come with the program"));
    for (QPushButton *button : {m_addPhoto, m_addFolder, m_open, m_recent, m_samples})
        button->setAccessibleName(button->text().replace(QLatin1String("&&"), QLatin1String("&")));
}

void StartPage::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QWidget::changeEvent(event);
}

} // namespace velmora
