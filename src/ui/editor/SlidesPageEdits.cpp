// SPDX-License-Identifier: GPL-3.0-or-later
// What the user does to the slides. The rest of SlidesPage is in SlidesPage.cpp.
#include "ui/editor/SlidesPage.h"

#include "app/AppSettings.h"
#include "app/TaskThread.h"
#include "chrome/MessageDialog.h"
#include "chrome/Theme.h"
#include "project/documents/MediaSuffixes.h"
#include "project/documents/ProjectFile.h"
#include "project/documents/Timeline.h"
#include "project/slides/ProjectItemFirst.h"
#include "project/slides/ProjectItemSimple.h"
#include "ui/editor/SlideActions.h"
#include "ui/editor/SlideSelection.h"
#include "ui/editor/SlideSorter.h"
#include "ui/model/SlideTableModel.h"
#include "ui/model/ValueLists.h"
#include "ui_SlidesPage.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenu>
#include <QPointer>

#include <algorithm>
#include <iterator>

namespace velmora
{

namespace
{

constexpr int kQuarterTurn = 90; // degrees

void fillMenu(QMenu *menu, const QPopupButton::Values &values)
{
    for (const auto &value : values)
        menu->addAction(value.first)->setData(value.second);
}

} // namespace

/// The slides for which a choice made in @p row holds: all selected ones if it is one of them.
ProjectEditor::Slides SlidesPage::scopeOf(int row) const
{
    ProjectItem *slide = m_model->slideAt(row);
    const ProjectEditor::Slides selected = m_selection->slides();
    if (!slide || selected.contains(slide))
        return selected;
    return {slide};
}

void SlidesPage::onTimeChanged(int row, int seconds)
{
    m_editor.setTime(scopeOf(row), seconds);
}

void SlidesPage::onTransitionChanged(int row, int transition)
{
    m_editor.setTransition(scopeOf(row), transition);
}

void SlidesPage::onDefTimeChanged(const QVariant &value)
{
    if (m_editor.project())
        m_editor.setTime(m_editor.project()->items(), value.toInt());
}

void SlidesPage::onDefTransitionChanged(const QVariant &value)
{
    if (m_editor.project())
        m_editor.setTransition(m_editor.project()->items(), value.toInt());
}

void SlidesPage::onSlidesMoved(const QVector<int> &rows, int before)
{
    ProjectEditor::Slides slides;
    for (const int row : rows)
        slides.append(m_model->slideAt(row));
    m_editor.moveSlides(slides, before);
}

void SlidesPage::onFileDropEnd()
{
    // The keys go on where the drop was.
    m_ui->tableView->setFocus(Qt::MouseFocusReason);
}

void SlidesPage::onCellButton(SlideButton button, int row)
{
    ProjectItem *slide = m_model->slideAt(row);
    switch (button) {
    case SlideButton::Caption:
        emit captionRequested(slide);
        break;
    case SlideButton::Delete:
        onDeleteClicked(slide);
        break;
    case SlideButton::Restore:
        on_btnRestore_clicked();
        break;
    case SlideButton::Relocate:
        relocate(slide);
        break;
    case SlideButton::None:
    case SlideButton::Value:
        break;
    }
}

void SlidesPage::onDeleteClicked(ProjectItem *item)
{
    m_editor.removeSlides({item});
}

void SlidesPage::deleteSelected()
{
    const ProjectEditor::Slides slides = m_selection->slides();
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

/// Without the title slide, which keeps its place.
ProjectEditor::Slides SlidesPage::selectedPhotos() const
{
    ProjectEditor::Slides photos;
    const ProjectEditor::Slides selected = m_selection->slides();
    std::copy_if(
        selected.begin(), selected.end(), std::back_inserter(photos),
        [](ProjectItem *slide) { return qobject_cast<ProjectItemSimple *>(slide) != nullptr; });
    return photos;
}

void SlidesPage::on_btnUp_clicked()
{
    const ProjectEditor::Slides photos = selectedPhotos();
    if (!photos.isEmpty())
        m_editor.moveSlides(photos, m_model->rowOf(photos.first()) - 1);
}

void SlidesPage::on_btnDown_clicked()
{
    const ProjectEditor::Slides photos = selectedPhotos();
    if (!photos.isEmpty())
        m_editor.moveSlides(photos, m_model->rowOf(photos.last()) + 2);
}

void SlidesPage::onBtnShuffleClicked()
{
    m_sorter->shuffle();
}

void SlidesPage::on_btnSort_clicked()
{
    m_sorter->sortAgain();
}

void SlidesPage::updateSortButtonStyle()
{
    const bool down = m_sorter->nextDirection() == SlideOrder::Direction::Ascending;
    m_ui->btnSort->setIcon(Theme::icon(
        QStringLiteral("AB-%1").arg(down ? QStringLiteral("down") : QStringLiteral("up"))));
}

void SlidesPage::onBtnRotate()
{
    rotateSelected(kQuarterTurn);
}

void SlidesPage::rotateSelected(int degrees)
{
    m_editor.rotate(m_selection->slides(), degrees);
    emit rotateChanged();
}

/// Other missing photos that lay in the same folder are looked for beside the file chosen.
void SlidesPage::relocate(ProjectItem *slide)
{
    const QPointer<ProjectItemSimple> photo = qobject_cast<ProjectItemSimple *>(slide);
    if (!photo)
        return;
    const QFileInfo old(photo->fileName());
    const QString filter = tr("Images (%1)").arg(photoNameFilters().join(QLatin1Char(' ')));
    const QString chosen = QFileDialog::getOpenFileName(
        this, tr("Where is %1?").arg(old.fileName()),
        QFileInfo::exists(old.path()) ? old.path() : QDir::homePath(), filter);
    // The project may have been replaced meanwhile.
    if (chosen.isEmpty() || !photo || m_model->rowOf(photo) < 0)
        return;
    const QString file = QFileInfo(chosen).absoluteFilePath();
    const QStringList others = missingBeside(photo, old.path());
    const int search = ++m_searches;
    m_editor.relocate(slide, file, search);
    m_disk->add([this, photo, file, others, search]() -> TaskThread::Report {
        QHash<QString, QString> found;
        const QDir folder = QFileInfo(file).dir();
        for (const QString &other : others) {
            const QString place = folder.filePath(QFileInfo(other).fileName());
            if (QFileInfo::exists(place))
                found.insert(other, place);
        }
        return [this, photo, file, found, search] {
            // Undone, or of another project by now?
            if (photo && m_model->rowOf(photo) >= 0 && photo->fileName() == file)
                relocateOthers(found, search);
        };
    });
}

/// The files of other slides that are missing and lay in that folder.
QStringList SlidesPage::missingBeside(const ProjectItem *slide, const QString &folder) const
{
    QStringList files;
    for (int row = 0; row < m_model->rowCount(); ++row) {
        const auto *other = qobject_cast<ProjectItemSimple *>(m_model->slideAt(row));
        if (other && other != slide && QFileInfo(other->fileName()).path() == folder &&
            m_model->index(row, 0).data(SlideTableModel::MissingRole).toBool())
            files.append(other->fileName());
    }
    return files;
}

/// @p found has the new places by the old ones.
void SlidesPage::relocateOthers(const QHash<QString, QString> &found, int search)
{
    for (int row = 0; row < m_model->rowCount(); ++row) {
        auto *photo = qobject_cast<ProjectItemSimple *>(m_model->slideAt(row));
        const QString place = photo ? found.value(photo->fileName()) : QString();
        if (!place.isEmpty())
            m_editor.relocate(photo, place, search);
    }
}

void SlidesPage::showContextMenu(const QPoint &position)
{
    if (!m_ui->tableView->indexAt(position).isValid())
        return;
    updateControls();
    QMenu menu;
    menu.setObjectName(QStringLiteral("slideMenu"));
    QMenu times(m_actions->time->text());
    QMenu transitions(m_actions->transition->text());
    times.setIcon(m_actions->time->icon());
    transitions.setIcon(m_actions->transition->icon());
    fillMenu(&times, ValueLists::slideTimes());
    fillMenu(&transitions, ValueLists::transitions());
    transitions.menuAction()->setEnabled(m_actions->transition->isEnabled());
    connect(&times, &QMenu::triggered, this, [this](const QAction *action) {
        m_editor.setTime(m_selection->slides(), action->data().toInt());
    });
    connect(&transitions, &QMenu::triggered, this, [this](const QAction *action) {
        m_editor.setTransition(m_selection->slides(), action->data().toInt());
    });
    m_actions->fillContextMenu(menu, &times, &transitions);
    menu.exec(m_ui->tableView->viewport()->mapToGlobal(position));
}

void SlidesPage::onBtnTotalClicked()
{
    if (!m_editor.project())
        return;
    const ProjectFile &project = *m_editor.project();
    const Timeline timeline = Timeline::ofProject(project, m_settings.transitionTime);
    const QStringList lines = {
        tr("Photos: %1").arg(m_model->photoCount()),
        tr("Running time: %1").arg(ValueLists::durationText(timeline.totalLength())),
        tr("Audio files: %1").arg(project.audio().items.size()),
        tr("Resolution: %1").arg(resolutionToText(project.resolution())),
    };
    MessageDialog::Message message;
    message.title = tr("Total");
    message.text = lines.join(QLatin1Char('\n'));
    message.buttons = QStringList{tr("CLOSE")};
    auto *dialog = new MessageDialog(message, this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

} // namespace velmora
