// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "project/images/ThubnailProvider.h"
#include "ui/model/MissingFiles.h"

#include <QAbstractTableModel>
#include <QCache>
#include <QHash>
#include <QImage>
#include <QSize>
#include <QTimer>

namespace velmora
{

class ProjectEditor;
class ProjectItem;
class ProjectItemFirst;

/// The slides of a project as the editor's table shows them. Edits go through the ProjectEditor.
/// Thumbnails are made on their own thread when a view first asks for them, so that only rows that
/// are shown are decoded, and arrive by dataChanged(); so does the news of missing files.
/// GUI thread.
class SlideTableModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    enum Column { NumberColumn, TimeColumn, TransitionColumn, TextColumn, ColumnCount };
    enum Role {
        MissingRole = Qt::UserRole, ///< bool: the photo's file is gone.
        ShownRole,                  ///< bool: the slide is part of the video.
        TitleRole,                  ///< QString: the slide's name.
        TitleSlideRole,             ///< bool: it is the title slide.
    };

    /// The box in which views show thumbnails, in device-independent px.
    static constexpr QSize kThumbnailBox{96, 64};

    explicit SlideTableModel(ProjectEditor &editor, QObject *parent = nullptr);
    ~SlideTableModel() override;

    ProjectItem *slideAt(int row) const;
    int rowOf(const ProjectItem *slide) const;
    int photoCount() const; ///< Slides besides the title slide.

    /// Tells which rows a view shows: thumbnails that other rows wait for are given up.
    void setVisibleRows(int first, int last);
    /// Looks anew which photos exist, such as after the user came back from another program.
    void checkFiles();

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    /// Time and transition, by their values.
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

signals:
    void filesChanged(); ///< Photos have gone, come back or been written anew.

private:
    using Slides = QVector<ProjectItem *>;

    QVariant text(const ProjectItem &slide, int row, int column) const;
    QVariant editValue(const ProjectItem &slide, int column) const;
    QString toolTip(const ProjectItem &slide) const;
    QImage thumbnail(const ProjectItem &slide) const;
    QImage titleThumbnail(const ProjectItemFirst &title) const;
    void keep(const QString &key, const QImage &thumbnail) const;
    void request(const QString &fileName) const;
    void reset();
    void checkFilesNow();
    void onMissingChanged();
    void forgetThumbnails(const QStringList &files);
    void onSlideChanged(ProjectItem *slide);
    void onThumbnailReady(const QUuid &id);

    ProjectEditor &m_editor;
    Slides m_slides;
    QHash<const ProjectItem *, int> m_rows;
    mutable ThubnailProvider m_provider;
    mutable QCache<QString, QImage> m_thumbnails; ///< By file name; cost in KiB.
    mutable QHash<QUuid, QString> m_requests;     ///< File names of those that are not finished.
    MissingFiles m_missing;
    QTimer m_check;
};

} // namespace velmora
