// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "project/images/ThubnailProvider.h"

#include <QAbstractTableModel>
#include <QCache>
#include <QHash>
#include <QImage>
#include <QList>
#include <QSet>

namespace velmora
{

class ProjectEditor;
class ProjectItem;

/// The slides of a project as the editor's table shows them. Edits go through the ProjectEditor.
/// Thumbnails are made on their own thread when a view first asks for them, so that only rows that
/// are shown are decoded, and arrive by dataChanged(). GUI thread.
class SlideTableModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    enum Column { NumberColumn, TimeColumn, TransitionColumn, TextColumn, ColumnCount };
    enum Role {
        MissingRole = Qt::UserRole, ///< bool: the photo's file is gone.
        ShownRole,                  ///< bool: the slide is part of the video.
        TitleRole,                  ///< QString: the slide's name.
    };

    explicit SlideTableModel(ProjectEditor &editor, QObject *parent = nullptr);
    ~SlideTableModel() override;

    ProjectItem *slideAt(int row) const;
    int rowOf(const ProjectItem *slide) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    /// Time and transition, by their values.
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    using Slides = QVector<ProjectItem *>;

    QVariant text(const ProjectItem &slide, int row, int column) const;
    QVariant editValue(const ProjectItem &slide, int column) const;
    QString toolTip(const ProjectItem &slide) const;
    QImage thumbnail(const ProjectItem &slide) const;
    void request(const QString &fileName) const;
    bool isMissing(const QString &fileName) const;
    void reset();
    void onSlideChanged(ProjectItem *slide);
    void onThumbnailReady(const QUuid &id);

    ProjectEditor &m_editor;
    Slides m_slides;
    QHash<const ProjectItem *, int> m_rows;
    mutable ThubnailProvider m_provider;
    mutable QCache<QString, QImage> m_thumbnails; ///< By file name; the latest ones.
    mutable QHash<QUuid, QString> m_requests;     ///< File names of those that are not finished.
    mutable QList<QUuid> m_order;                 ///< The same, oldest first.
    mutable QHash<QString, bool> m_missing;
};

} // namespace velmora
