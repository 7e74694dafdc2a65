// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/editor/SlidesPage.h"

#include "app/AppSettings.h"
#include "project/documents/MediaSuffixes.h"
#include "project/documents/ProjectFile.h"
#include "project/documents/Timeline.h"
#include "project/slides/ProjectItemFirst.h"
#include "project/slides/ProjectItemSimple.h"
#include "ui/editor/ComboBoxItemDelegate.h"
#include "ui/model/SlideTableModel.h"
#include "ui/model/ValueLists.h"
#include "ui_SlidesPage.h"

#include <QHeaderView>
#include <QItemSelectionModel>
#include <QRandomGenerator>
#include <QShortcut>

#include <algorithm>

namespace velmora
{

namespace
{

constexpr int kRowHeight = 72;     // px
constexpr int kQuarterTurn = 90;   // degrees
constexpr int kThumbnailSide = 62; // px

QIcon picture(const QString &name)
{
    return QIcon(QStringLiteral(":/images/images/%1.png").arg(name));
}

} // namespace

SlidesPage::SlidesPage(ProjectEditor &editor, const AppSettings &settings, QWidget *parent)
    : QWidget(parent), m_editor(editor), m_settings(settings),
      m_ui(std::make_unique<Ui::SlidesPage>()), m_model(new SlideTableModel(editor, this))
{
    m_ui->setupUi(this);
    setUpTable();
    m_ui->btnDefaultTime->setValues(ValueLists::slideTimes());
    m_ui->btnDefaultTransition->setValues(ValueLists::transitions());
    m_ui->btnUp->setIcon(picture(QStringLiteral("up")));
    m_ui->btnDown->setIcon(picture(QStringLiteral("down")));
    m_ui->btnShufle->setIcon(picture(QStringLiteral("shuffle")));
    m_ui->m_btnRotate->setIcon(picture(QStringLiteral("rotate")));
    m_ui->btnRestore->setIcon(picture(QStringLiteral("undo")));
    m_ui->btnClear->setIcon(picture(QStringLiteral("clear")));
    updateSortButtonStyle();
    connect(m_ui->btnDefaultTime, &QPopupButton::valueSelected, this,
            &SlidesPage::onDefTimeChanged);
    connect(m_ui->btnDefaultTransition, &QPopupButton::valueSelected, this,
            &SlidesPage::onDefTransitionChanged);
    connect(m_ui->btnShufle, &QPushButton::clicked, this, &SlidesPage::onBtnShuffleClicked);
    connect(m_ui->m_btnRotate, &QPushButton::clicked, this, &SlidesPage::onBtnRotate);
    connect(&m_editor, &ProjectEditor::slidesAboutToChange, this,
            [this] { m_kept = selectedSlides(); });
    connect(&m_editor, &ProjectEditor::slidesChanged, this, [this] {
        selectSlides(m_kept);
        updateControls();
    });
    connect(&m_editor, &ProjectEditor::slideChanged, this, &SlidesPage::updateControls);
    connect(&m_editor, &ProjectEditor::totalsChanged, this, &SlidesPage::updateTotals);
    connect(&m_editor, &ProjectEditor::projectChanged, this, [this] {
        m_ui->btnDefaultTime->setValue(m_settings.defaultTime);
        m_ui->btnDefaultTransition->setValue(m_settings.defaultTransition);
        updateControls();
    });
    setUpShortcuts();
    updateControls();
    updateTotals();
}

SlidesPage::~SlidesPage() = default;

void SlidesPage::setUpTable()
{
    QTableView &table = *m_ui->tableView;
    table.setModel(m_model);
    table.setSelectionBehavior(QAbstractItemView::SelectRows);
    table.setSelectionMode(QAbstractItemView::ExtendedSelection);
    table.setShowGrid(false);
    table.setTabKeyNavigation(false);
    table.setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    table.setIconSize({kThumbnailSide, kThumbnailSide});
    table.setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                          QAbstractItemView::SelectedClicked);
    table.verticalHeader()->hide();
    table.verticalHeader()->setDefaultSectionSize(kRowHeight);
    table.horizontalHeader()->setStretchLastSection(true);
    table.horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    table.setColumnWidth(SlideTableModel::NumberColumn, 128);
    table.setColumnWidth(SlideTableModel::TimeColumn, 96);
    table.setColumnWidth(SlideTableModel::TransitionColumn, 184);
    table.setItemDelegateForColumn(SlideTableModel::TimeColumn,
                                   new ComboBoxItemDelegate(ValueLists::slideTimes(), this));
    table.setItemDelegateForColumn(SlideTableModel::TransitionColumn,
                                   new ComboBoxItemDelegate(ValueLists::transitions(), this));
    connect(table.selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        updateControls();
        emit selectionChanged();
    });
}

void SlidesPage::addShortcut(const QKeySequence &keys, void (SlidesPage::*slot)())
{
    auto *shortcut = new QShortcut(keys, this);
    shortcut->setContext(Qt::WidgetWithChildrenShortcut);
    connect(shortcut, &QShortcut::activated, this, slot);
}

void SlidesPage::setUpShortcuts()
{
    addShortcut(QKeySequence(Qt::Key_Delete), &SlidesPage::deleteSelected);
    addShortcut(QKeySequence(Qt::CTRL + Qt::Key_R), &SlidesPage::onBtnRotate);
    addShortcut(QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_R), &SlidesPage::rotateBack);
    addShortcut(QKeySequence(Qt::ALT + Qt::Key_Up), &SlidesPage::on_btnUp_clicked);
    addShortcut(QKeySequence(Qt::ALT + Qt::Key_Down), &SlidesPage::on_btnDown_clicked);
}

ProjectEditor::Slides SlidesPage::selectedSlides() const
{
    QVector<int> rows;
    const QModelIndexList indexes = m_ui->tableView->selectionModel()->selectedRows();
    for (const QModelIndex &index : indexes)
        rows.append(index.row());
    std::sort(rows.begin(), rows.end());
    ProjectEditor::Slides slides;
    for (const int row : qAsConst(rows))
        slides.append(m_model->slideAt(row));
    return slides;
}

void SlidesPage::selectSlides(const ProjectEditor::Slides &slides)
{
    QItemSelection selection;
    for (const ProjectItem *slide : slides) {
        const int row = m_model->rowOf(slide);
        if (row >= 0)
            selection.select(m_model->index(row, 0),
                             m_model->index(row, SlideTableModel::ColumnCount - 1));
    }
    m_ui->tableView->selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
}

ProjectEditor::Slides SlidesPage::photos() const
{
    ProjectEditor::Slides slides;
    if (!m_editor.project())
        return slides;
    for (ProjectItem *slide : m_editor.project()->items()) {
        if (qobject_cast<ProjectItemSimple *>(slide))
            slides.append(slide);
    }
    return slides;
}

void SlidesPage::replaceOrder(ProjectEditor::Slides order, const QString &text)
{
    const ProjectEditor::Slides present = m_editor.project()->items();
    if (!present.isEmpty() && !order.contains(present.first()))
        order.prepend(present.first());
    m_editor.setOrder(order, text);
}

void SlidesPage::onDefTimeChanged(const QVariant &value)
{
    if (m_editor.project())
        m_editor.setTime(m_editor.project()->items(), value.toInt());
}

void SlidesPage::onDefTransitionChanged(const QVariant &value)
{
    m_editor.setTransition(photos(), value.toInt());
}

void SlidesPage::onDeleteClicked(ProjectItem *item)
{
    m_editor.removeSlides({item});
}

void SlidesPage::deleteSelected()
{
    const ProjectEditor::Slides slides = selectedSlides();
    if (!slides.isEmpty())
        m_editor.removeSlides(slides);
}

void SlidesPage::on_btnClear_clicked()
{
    if (m_editor.project())
        m_editor.removeSlides(m_editor.project()->items());
}

void SlidesPage::on_btnRestore_clicked()
{
    if (const auto *title = qobject_cast<ProjectItemFirst *>(m_model->slideAt(0)))
        m_editor.setTitleSlide(title->backgroundIndex(), true);
}

void SlidesPage::on_btnUp_clicked()
{
    const ProjectEditor::Slides slides = selectedSlides();
    if (!slides.isEmpty())
        m_editor.moveSlides(slides, m_model->rowOf(slides.first()) - 1);
}

void SlidesPage::on_btnDown_clicked()
{
    const ProjectEditor::Slides slides = selectedSlides();
    if (!slides.isEmpty())
        m_editor.moveSlides(slides, m_model->rowOf(slides.last()) + 2);
}

void SlidesPage::onBtnShuffleClicked()
{
    ProjectEditor::Slides order = photos();
    if (order.isEmpty())
        return;
    std::shuffle(order.begin(), order.end(), *QRandomGenerator::global());
    replaceOrder(order, tr("Shuffle photos"));
}

void SlidesPage::on_btnSort_clicked()
{
    QMultiHash<QString, ProjectItem *> byFile;
    const ProjectEditor::Slides present = photos();
    for (auto slide = present.crbegin(); slide != present.crend(); ++slide)
        byFile.insert(static_cast<ProjectItemSimple *>(*slide)->fileName(), *slide);
    if (byFile.isEmpty())
        return;
    QStringList files = byFile.uniqueKeys();
    sortNaturally(&files);
    if (m_descending)
        std::reverse(files.begin(), files.end());
    ProjectEditor::Slides order;
    for (const QString &file : qAsConst(files))
        order += byFile.values(file).toVector();
    replaceOrder(order, tr("Sort photos"));
    m_descending = !m_descending;
    updateSortButtonStyle();
}

void SlidesPage::updateSortButtonStyle()
{
    m_ui->btnSort->setIcon(picture(
        QStringLiteral("AB-%1").arg(m_descending ? QStringLiteral("up") : QStringLiteral("down"))));
}

void SlidesPage::onBtnRotate()
{
    m_editor.rotate(selectedSlides(), kQuarterTurn);
    emit rotateChanged();
}

void SlidesPage::rotateBack()
{
    m_editor.rotate(selectedSlides(), -kQuarterTurn);
    emit rotateChanged();
}

void SlidesPage::updateControls()
{
    const bool hasProject = m_editor.project() != nullptr;
    const int count = hasProject ? m_editor.project()->items().size() : 0;
    const ProjectEditor::Slides selected = selectedSlides();
    const bool hasPhoto =
        std::any_of(selected.begin(), selected.end(), [](const ProjectItem *slide) {
            return qobject_cast<const ProjectItemSimple *>(slide) != nullptr;
        });
    m_ui->btnUp->setEnabled(hasPhoto);
    m_ui->btnDown->setEnabled(hasPhoto);
    m_ui->m_btnRotate->setEnabled(hasPhoto);
    const auto *title = qobject_cast<const ProjectItemFirst *>(m_model->slideAt(0));
    m_ui->btnRestore->setEnabled(title && !title->isShown());
    m_ui->btnClear->setText(tr("Clear list (%1)").arg(count));
    m_ui->btnClear->setEnabled(count > 0);
}

void SlidesPage::updateTotals()
{
    qint64 length = 0;
    if (m_editor.project())
        length = Timeline::ofProject(*m_editor.project(), m_settings.transitionTime).totalLength();
    m_ui->btnTotal->setText(tr("Total: %1").arg(ValueLists::durationText(length)));
}

} // namespace velmora
