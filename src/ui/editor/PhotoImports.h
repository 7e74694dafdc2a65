// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/model/PhotoImporter.h"

#include <QObject>

namespace velmora
{

class BusyNote;
class ProjectEditor;
class ProjectItem;

/// Adds dropped and chosen photos and folders to the project, one batch after the other, with a
/// note that can cancel them. What cannot be added is listed once, at the end. GUI thread.
class PhotoImports : public QObject
{
    Q_OBJECT
public:
    /// @p note, which is for this alone, and @p window, over which the list is shown, must outlive
    /// it.
    PhotoImports(ProjectEditor &editor, BusyNote &note, QWidget *window);

    /// @p row as for ProjectEditor::addPhotos(), as counted now: what changes until the photos
    /// arrive does not part them from the slide before.
    void add(const QStringList &paths, int row);
    /// Gives up all batches.
    void cancel();
    bool isRunning() const { return m_importer.isRunning(); }

signals:
    void runningChanged(); ///< A batch began or ended.

private:
    struct Batch {
        QStringList paths;
        int row = -1;
        const ProjectItem *after = nullptr; ///< The slide before that row. Only compared.
    };

    void next();
    int rowAfter(const ProjectItem *slide, int otherwise) const;
    void onFinished(const PhotoImport &import);
    void showRefused();

    ProjectEditor &m_editor;
    BusyNote &m_note;
    QWidget *m_window;
    PhotoImporter m_importer;
    QVector<Batch> m_waiting;
    const ProjectItem *m_after = nullptr; ///< Of the batch in work.
    QVector<PhotoImport::Refused> m_refused;
};

} // namespace velmora
