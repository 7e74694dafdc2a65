// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/editor/PhotoImports.h"

#include "chrome/MessageDialog.h"
#include "project/documents/ProjectFile.h"
#include "ui/editor/BusyNote.h"
#include "ui/model/ProjectEditor.h"

#include <QDir>

#include <algorithm>

namespace velmora
{

PhotoImports::PhotoImports(ProjectEditor &editor, BusyNote &note, QWidget *window)
    : QObject(window), m_editor(editor), m_note(note), m_window(window)
{
    connect(&m_importer, &PhotoImporter::finished, this, &PhotoImports::onFinished);
    connect(&m_importer, &PhotoImporter::progress, this, [this](int looked) {
        m_note.setProgress(tr("Adding photos: %n looked at", nullptr, looked), 0, 0);
    });
    connect(&m_note, &BusyNote::cancelClicked, this, &PhotoImports::cancel);
}

void PhotoImports::add(const QStringList &paths, int row)
{
    const ProjectFile *project = m_editor.project();
    m_waiting.append({paths, row, project ? project->items().value(row - 1) : nullptr});
    if (!m_importer.isRunning())
        next();
}

void PhotoImports::next()
{
    const Batch batch = m_waiting.takeFirst();
    m_after = batch.after;
    m_note.begin(tr("Adding photos"));
    m_importer.start(batch.paths, batch.row);
    emit runningChanged();
}

int PhotoImports::rowAfter(const ProjectItem *slide, int otherwise) const
{
    if (!slide || !m_editor.project())
        return otherwise;
    const ProjectEditor::Slides &slides = m_editor.project()->items();
    const auto place = std::find(slides.begin(), slides.end(), slide);
    return place == slides.end() ? otherwise : static_cast<int>(place - slides.begin()) + 1;
}

void PhotoImports::cancel()
{
    m_waiting.clear();
    m_importer.cancel();
}

void PhotoImports::onFinished(const PhotoImport &import)
{
    m_note.end();
    if (import.cancelled) {
        m_refused.clear();
    } else {
        m_editor.addPhotos(import.photos, rowAfter(m_after, import.row));
        m_refused += import.refused;
    }
    if (!m_waiting.isEmpty())
        next();
    else if (!m_refused.isEmpty())
        showRefused();
    emit runningChanged();
}

void PhotoImports::showRefused()
{
    QStringList lines;
    for (const PhotoImport::Refused &refused : qAsConst(m_refused))
        lines.append(tr("%1: %2").arg(QDir::toNativeSeparators(refused.path), refused.reason));
    MessageDialog::Message message;
    message.kind = MessageDialog::Kind::Warning;
    message.title = tr("Adding photos");
    message.text = tr("%n files have not been added", nullptr, m_refused.size());
    message.details = lines.join(QLatin1Char('\n'));
    message.buttons = QStringList{tr("CLOSE")};
    m_refused.clear();
    auto *dialog = new MessageDialog(message, m_window);
    dialog->setObjectName(QStringLiteral("notAllPhotos"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

} // namespace velmora
