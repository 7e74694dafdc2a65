// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/model/PhotoImporter.h"

#include <QObject>
#include <QPair>

namespace velmora
{

class BusyNote;
class ProjectEditor;

/// Adds dropped and chosen photos and folders to the project, one batch after the other, with a
/// note that can cancel them. What cannot be added is listed once, at the end. GUI thread.
class PhotoImports : public QObject
{
    Q_OBJECT
public:
    /// @p note, which is for this alone, and @p window, over which the list is shown, must outlive
    /// it.
    PhotoImports(ProjectEditor &editor, BusyNote &note, QWidget *window);

    /// @p row as for ProjectEditor::addPhotos().
    void add(const QStringList &paths, int row);
    /// Gives up all batches.
    void cancel();
    bool isRunning() const { return m_importer.isRunning(); }

signals:
    void runningChanged(); ///< A batch began or ended.

private:
    void next();
    void onFinished(const PhotoImport &import);
    void showRefused();

    ProjectEditor &m_editor;
    BusyNote &m_note;
    QWidget *m_window;
    PhotoImporter m_importer;
    QVector<QPair<QStringList, int>> m_waiting;
    QVector<PhotoImport::Refused> m_refused;
};

} // namespace velmora
