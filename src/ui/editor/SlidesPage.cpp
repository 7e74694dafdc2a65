// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/editor/SlidesPage.h"

#include "app/AppSettings.h"
#include "app/TaskThread.h"
#include "chrome/HintLabel.h"
#include "chrome/Theme.h"
#include "project/documents/ProjectFile.h"
#include "project/documents/Timeline.h"
#include "project/slides/ProjectItemFirst.h"
#include "project/slides/ProjectItemSimple.h"
#include "ui/editor/BusyNote.h"
#include "ui/editor/SlideActions.h"
#include "ui/editor/SlideSelection.h"
#include "ui/editor/SlideSorter.h"
#include "ui/model/SlideTableModel.h"
#include "ui/model/ValueLists.h"
#include "ui_SlidesPage.h"

#include <QItemSelectionModel>
#include <QLabel>
#include <QMenu>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace velmora
{

namespace
{

constexpr int kToolSize = 40; // px
constexpr int kToolIcon = 24; // px

QWidget *createHint(HintLabel *text, QWidget *parent)
{
    auto *hint = new QWidget(parent);
    hint->setObjectName(QStringLiteral("emptyHint"));
    hint->setAttribute(Qt::WA_TransparentForMouseEvents);
    auto *picture = new QLabel;
    picture->setPixmap(Theme::icon(QStringLiteral("photos")).pixmap(208, 120));
    picture->setAlignment(Qt::AlignCenter);
    text->setProperty("secondary", true);
    auto *column = new QVBoxLayout(hint);
    column->setSpacing(16);
    column->addStretch();
    column->addWidget(picture);
    column->addWidget(text);
    column->addStretch();
    return hint;
}

/// The value that all slides share; invalid when they differ or there are none.
template <typename Value> QVariant common(const ProjectEditor::Slides &slides, Value value)
{
    QVariant found;
    for (const ProjectItem *slide : slides) {
        const QVariant own = value(*slide);
        if (found.isValid() && own.isValid() && own != found)
            return {};
        if (own.isValid())
            found = own;
    }
    return found;
}

} // namespace

SlidesPage::SlidesPage(ProjectEditor &editor, const AppSettings &settings, QWidget *parent)
    : QWidget(parent), m_editor(editor), m_settings(settings),
      m_ui(std::make_unique<Ui::SlidesPage>()), m_model(new SlideTableModel(editor, this)),
      m_importNote(new BusyNote), m_sortNote(new BusyNote), m_actions(new SlideActions(this)),
      m_sorter(new SlideSorter(editor, *m_sortNote, this)), m_disk(new TaskThread)
{
    m_ui->setupUi(this);
    m_importNote->setObjectName(QStringLiteral("importNote"));
    m_sortNote->setObjectName(QStringLiteral("sortNote"));
    m_ui->pageLayout->insertWidget(1, m_importNote);
    m_ui->pageLayout->insertWidget(2, m_sortNote);
    m_hintText = new HintLabel;
    m_hint = createHint(m_hintText, m_ui->tableView->viewport());
    m_update.setSingleShot(true);
    connect(&m_update, &QTimer::timeout, this, &SlidesPage::updateControls);
    setUpTable();
    setUpActions();
    setUpButtons();
    connectEditor();
    updateControls();
}

SlidesPage::~SlidesPage()
{
    m_disk->retire();
}

void SlidesPage::setUpTable()
{
    SlideTable &table = *m_ui->tableView;
    table.setSlides(m_model);
    m_selection = new SlideSelection(m_editor, table, this);
    table.setContextMenuPolicy(Qt::CustomContextMenu);
    table.viewport()->installEventFilter(this);
    connect(m_model, &QAbstractItemModel::dataChanged, this,
            [this](const QModelIndex &, const QModelIndex &, const QVector<int> &roles) {
                if (roles.isEmpty()) // photos may have gone or come back
                    updateLater();
            });
    connect(m_model, &SlideTableModel::filesChanged, this, &SlidesPage::filesChanged);
    connect(&table, &QWidget::customContextMenuRequested, this, &SlidesPage::showContextMenu);
    connect(&table, &SlideTable::timeChosen, this, &SlidesPage::onTimeChanged);
    connect(&table, &SlideTable::transitionChosen, this, &SlidesPage::onTransitionChanged);
    connect(&table, &SlideTable::buttonClicked, this, &SlidesPage::onCellButton);
    connect(&table, &SlideTable::previewRequested, this, &SlidesPage::previewRequested);
    connect(&table, &SlideTable::rowsMoved, this, &SlidesPage::onSlidesMoved);
    connect(&table, &SlideTable::filesDropped, this, &SlidesPage::filesDropped);
    connect(&table, &SlideTable::dropEnd, this, &SlidesPage::onFileDropEnd);
    connect(table.selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &SlidesPage::onSelectionChanged);
    connect(table.selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &SlidesPage::updateLater);
}

void SlidesPage::setUpActions()
{
    SlideActions &actions = *m_actions;
    connect(actions.up, &QAction::triggered, this, &SlidesPage::on_btnUp_clicked);
    connect(actions.down, &QAction::triggered, this, &SlidesPage::on_btnDown_clicked);
    connect(actions.rotate, &QAction::triggered, this, &SlidesPage::onBtnRotate);
    connect(actions.rotateBack, &QAction::triggered, this, [this] { rotateSelected(-90); });
    connect(actions.shuffle, &QAction::triggered, this, &SlidesPage::onBtnShuffleClicked);
    connect(actions.sortByName, &QAction::triggered, this,
            [this] { m_sorter->sort(SlideSorter::Criterion::Name); });
    connect(actions.sortByDate, &QAction::triggered, this,
            [this] { m_sorter->sort(SlideSorter::Criterion::Date); });
    connect(actions.caption, &QAction::triggered, this,
            [this] { emit captionRequested(m_selection->current()); });
    connect(actions.captionOfAll, &QAction::triggered, this, &SlidesPage::captionOfAllRequested);
    connect(actions.time, &QAction::triggered, this,
            [this] { m_ui->tableView->openValues(SlideTableModel::TimeColumn); });
    connect(actions.transition, &QAction::triggered, this,
            [this] { m_ui->tableView->openValues(SlideTableModel::TransitionColumn); });
    connect(actions.preview, &QAction::triggered, this, &SlidesPage::previewRequested);
    connect(actions.relocate, &QAction::triggered, this,
            [this] { relocate(m_selection->current()); });
    connect(actions.restore, &QAction::triggered, this, &SlidesPage::on_btnRestore_clicked);
    connect(actions.remove, &QAction::triggered, this, &SlidesPage::deleteSelected);
    connect(actions.clear, &QAction::triggered, this, &SlidesPage::on_btnClear_clicked);
}

void SlidesPage::setUpButtons()
{
    SlideActions::bind(m_ui->btnUp, m_actions->up);
    SlideActions::bind(m_ui->btnDown, m_actions->down);
    SlideActions::bind(m_ui->btnShufle, m_actions->shuffle);
    connect(m_actions->sortByName, &QAction::changed, m_ui->btnSort,
            [this] { m_ui->btnSort->setEnabled(m_actions->sortByName->isEnabled()); });
    SlideActions::bind(m_ui->m_btnRotate, m_actions->rotate);
    SlideActions::bind(m_ui->btnRotateBack, m_actions->rotateBack);
    SlideActions::bind(m_ui->btnDelete, m_actions->remove);
    SlideActions::bind(m_ui->btnRestore, m_actions->restore);
    SlideActions::bind(m_ui->btnClear, m_actions->clear);
    auto *menu = new QMenu(m_ui->btnSort);
    menu->addActions({m_actions->sortByName, m_actions->sortByDate});
    m_ui->btnSort->setMenu(menu);
    connect(m_ui->btnShufle, &QToolButton::clicked, this, &SlidesPage::onBtnShuffleClicked);
    connect(m_ui->m_btnRotate, &QToolButton::clicked, this, &SlidesPage::onBtnRotate);
    connect(m_ui->btnRotateBack, &QToolButton::clicked, m_actions->rotateBack, &QAction::trigger);
    connect(m_ui->btnDelete, &QToolButton::clicked, this, &SlidesPage::deleteSelected);
    connect(m_ui->btnTotal, &QPushButton::clicked, this, &SlidesPage::onBtnTotalClicked);
    connect(m_sorter, &SlideSorter::changed, this, &SlidesPage::updateSortButtonStyle);
    connect(m_sorter, &SlideSorter::readingChanged, this, &SlidesPage::sortingChanged);
    for (QPushButton *button : {m_ui->btnTotal, m_ui->btnClear}) {
        button->setProperty("flat", true);
        button->setProperty("compact", true);
        button->setFocusPolicy(Qt::TabFocus);
    }
    connect(m_ui->btnDefaultTime, &QPopupButton::valueSelected, this,
            &SlidesPage::onDefTimeChanged);
    connect(m_ui->btnDefaultTransition, &QPopupButton::valueSelected, this,
            &SlidesPage::onDefTransitionChanged);
    const QList<QToolButton *> tools = findChildren<QToolButton *>();
    for (QToolButton *tool : tools) {
        tool->setFixedSize(kToolSize, kToolSize);
        tool->setIconSize({kToolIcon, kToolIcon});
        tool->setToolButtonStyle(Qt::ToolButtonIconOnly);
        tool->setFocusPolicy(Qt::TabFocus);
    }
    for (QFrame *line : {m_ui->lineUndo, m_ui->lineOrder}) {
        line->setFrameShape(QFrame::NoFrame);
        line->setProperty("separator", true);
    }
    updateSortButtonStyle();
    retranslate();
}

void SlidesPage::retranslate()
{
    m_actions->retranslate();
    m_ui->tableView->retranslate();
    m_hintText->setText(tr("Drag & drop photos and folders to add them here"));
    m_ui->btnSort->setToolTip(
        SlideActions::toolTip(tr("Sort photos"), m_actions->sortByName->shortcut()));
    m_ui->btnSort->setAccessibleName(tr("Sort photos"));
    m_ui->btnDefaultTime->setValues(ValueLists::slideTimes());
    m_ui->btnDefaultTransition->setValues(ValueLists::transitions());
}

void SlidesPage::setUndoActions(QAction *undo, QAction *redo)
{
    const auto bind = [](QToolButton *button, QAction *action) {
        SlideActions::bind(button, action);
        connect(button, &QToolButton::clicked, action, &QAction::trigger);
    };
    bind(m_ui->btnUndo, undo);
    bind(m_ui->btnRedo, redo);
}

void SlidesPage::connectEditor()
{
    connect(&m_editor, &ProjectEditor::slidesChanged, this, &SlidesPage::updateLater);
    connect(&m_editor, &ProjectEditor::slideChanged, this, &SlidesPage::updateLater);
    connect(&m_editor, &ProjectEditor::totalsChanged, this, &SlidesPage::updateLater);
    connect(&m_editor, &ProjectEditor::projectChanged, this, [this] {
        m_sorter->reset();
        m_told = nullptr; // belongs to the project before
        m_ui->tableView->scrollToTop();
        m_selection->select({m_model->slideAt(std::min(1, m_model->rowCount() - 1))});
        updateLater(); // other listeners may not know the project yet
    });
}

void SlidesPage::onSelectionChanged(const QItemSelection &, const QItemSelection &)
{
    updateLater();
}

bool SlidesPage::event(QEvent *event)
{
    // Photos may have been moved or brought back in another program.
    if (event->type() == QEvent::WindowActivate || event->type() == QEvent::Show)
        m_model->checkFiles();
    return QWidget::event(event);
}

void SlidesPage::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        m_ui->retranslateUi(this);
        retranslate();
        updateControls();
    }
    QWidget::changeEvent(event);
}

bool SlidesPage::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize)
        placeHint();
    return QWidget::eventFilter(watched, event);
}

void SlidesPage::placeHint()
{
    QRect area = m_ui->tableView->viewport()->rect();
    const int rows = m_model->rowCount();
    if (rows > 0)
        area.setTop(m_ui->tableView->rowViewportPosition(rows - 1) +
                    m_ui->tableView->rowHeight(rows - 1));
    m_hint->setGeometry(area);
    m_hint->setVisible(m_editor.project() && rows > 0 && m_model->photoCount() == 0);
}

int SlidesPage::shownCount() const
{
    const ProjectItem *first = m_model->slideAt(0);
    return m_model->rowCount() - (first && !first->isShown() ? 1 : 0);
}

void SlidesPage::updateControls()
{
    m_ui->tableView->setFixedRows(m_model->rowCount() - m_model->photoCount());
    placeHint();
    updateActions();
    updateDefaults();
    updateTotals();
    ProjectItem *current = m_selection->current();
    if (current != m_told) {
        m_told = current;
        emit currentSlideChanged(current);
    }
}

void SlidesPage::updateActions()
{
    const ProjectEditor::Slides selected = m_selection->slides();
    const bool hasPhoto = !selectedPhotos().isEmpty();
    for (QAction *action : {m_actions->up, m_actions->down, m_actions->rotate,
                            m_actions->rotateBack, m_actions->transition})
        action->setEnabled(hasPhoto);
    for (QAction *action : {m_actions->time, m_actions->caption, m_actions->preview})
        action->setEnabled(!selected.isEmpty());
    for (QAction *action : {m_actions->shuffle, m_actions->sortByName, m_actions->sortByDate})
        action->setEnabled(m_model->photoCount() > 1);
    const ProjectItem *first = m_model->slideAt(0);
    const bool hidden = first && !first->isShown();
    m_actions->restore->setEnabled(hidden);
    m_ui->btnRestore->setVisible(hidden);
    m_actions->remove->setEnabled(hasPhoto || (!selected.isEmpty() && !hidden));
    m_actions->captionOfAll->setEnabled(m_model->rowCount() > 0);
    const QModelIndex current = m_model->index(m_model->rowOf(m_selection->current()), 0);
    m_actions->relocate->setEnabled(current.data(SlideTableModel::MissingRole).toBool());
    m_actions->clear->setEnabled(shownCount() > 0);
    m_ui->btnClear->setText(tr("Clear list (%1)").arg(shownCount()));
}

void SlidesPage::updateDefaults()
{
    const ProjectEditor::Slides slides =
        m_editor.project() ? m_editor.project()->items() : ProjectEditor::Slides();
    const QVariant time =
        common(slides, [](const ProjectItem &slide) { return QVariant(slide.time()); });
    const QVariant transition = common(slides, [](const ProjectItem &slide) {
        const auto *photo = qobject_cast<const ProjectItemSimple *>(&slide);
        return photo ? QVariant(photo->transition()) : QVariant();
    });
    if (m_model->photoCount() == 0) {
        m_ui->btnDefaultTime->setValue(m_settings.defaultTime);
        m_ui->btnDefaultTransition->setValue(m_settings.defaultTransition);
        return;
    }
    m_ui->btnDefaultTime->setValue(time, time.isValid() ? ValueLists::secondsText(time.toInt())
                                                        : tr("Various"));
    m_ui->btnDefaultTransition->setValue(transition,
                                         transition.isValid() ? QString() : tr("Various"));
}

void SlidesPage::updateTotals()
{
    qint64 length = 0;
    if (m_editor.project())
        length = Timeline::ofProject(*m_editor.project(), m_settings.transitionTime).totalLength();
    m_ui->btnTotal->setText(tr("Total: %1").arg(ValueLists::durationText(length)));
    m_ui->btnTotal->setEnabled(shownCount() > 0);
}

bool SlidesPage::isSorting() const
{
    return m_sorter->isReading();
}

void SlidesPage::focusTable()
{
    m_ui->tableView->setFocus();
}

void SlidesPage::updateFromSettings()
{
    updateControls();
}

} // namespace velmora
