// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/model/SlideTableModel.h"

#include "project/documents/ProjectFile.h"
#include "project/frames/SlideRenderer.h"
#include "project/slides/ProjectItemFirst.h"
#include "project/slides/ProjectItemSimple.h"
#include "project/slides/TransitionType.h"
#include "ui/model/ProjectEditor.h"
#include "ui/model/ValueLists.h"

#include <QDir>
#include <QGuiApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>
#include <QTransform>

#include <algorithm>

namespace velmora
{

namespace
{

constexpr int kThumbnailMemory = 96 * 1024; // KiB

/// @p size in px of the sharpest screen.
QSize devicePixels(const QSize &size)
{
    return (QSizeF(size) * (qApp ? qApp->devicePixelRatio() : 1.0)).toSize();
}

/// Photos may be turned, so each side may become the long one.
QSize photoBox()
{
    const int side = SlideTableModel::kThumbnailBox.width();
    return devicePixels({side, side});
}

QString fileOf(const ProjectItem &slide)
{
    const auto *photo = qobject_cast<const ProjectItemSimple *>(&slide);
    return photo ? photo->fileName() : QString();
}

} // namespace

SlideTableModel::SlideTableModel(ProjectEditor &editor, QObject *parent)
    : QAbstractTableModel(parent), m_editor(editor), m_thumbnails(kThumbnailMemory)
{
    connect(&m_editor, &ProjectEditor::projectChanged, this, [this] {
        m_provider.clear();
        m_requests.clear();
        reset();
    });
    connect(&m_editor, &ProjectEditor::slidesChanged, this, &SlideTableModel::reset);
    connect(&m_editor, &ProjectEditor::slideChanged, this, &SlideTableModel::onSlideChanged);
    connect(&m_editor, &ProjectEditor::settingsChanged, this, [this] {
        // The title slide has the proportions of the video.
        if (!m_slides.isEmpty())
            emit dataChanged(index(0, NumberColumn), index(0, NumberColumn), {Qt::DecorationRole});
    });
    connect(&m_provider, &ThubnailProvider::thumbnailReady, this,
            &SlideTableModel::onThumbnailReady);
    m_check.setSingleShot(true); // many slides may change at once
    connect(&m_check, &QTimer::timeout, this, &SlideTableModel::checkFilesNow);
    connect(&m_missing, &MissingFiles::changed, this, &SlideTableModel::onMissingChanged);
    connect(&m_missing, &MissingFiles::touched, this, &SlideTableModel::forgetThumbnails);
    connect(&m_missing, &MissingFiles::changed, this, &SlideTableModel::filesChanged);
    connect(&m_missing, &MissingFiles::touched, this, &SlideTableModel::filesChanged);
    m_provider.setPhotoBox(photoBox());
    m_provider.start(QThread::LowPriority);
    reset();
}

SlideTableModel::~SlideTableModel()
{
    m_provider.stop();
}

void SlideTableModel::reset()
{
    beginResetModel();
    m_slides = m_editor.project() ? m_editor.project()->items() : Slides();
    m_rows.clear();
    for (int row = 0; row < m_slides.size(); ++row)
        m_rows.insert(m_slides.at(row), row);
    endResetModel();
    checkFiles();
}

void SlideTableModel::checkFiles()
{
    m_check.start();
}

void SlideTableModel::checkFilesNow()
{
    QStringList files;
    files.reserve(m_slides.size());
    for (const ProjectItem *slide : qAsConst(m_slides)) {
        const QString file = fileOf(*slide);
        if (!file.isEmpty())
            files.append(file);
    }
    m_missing.check(files);
}

void SlideTableModel::onMissingChanged()
{
    if (!m_slides.isEmpty())
        emit dataChanged(index(0, 0), index(m_slides.size() - 1, ColumnCount - 1));
}

/// Has the thumbnails of @p files made again, also where the first attempt came to nothing.
void SlideTableModel::forgetThumbnails(const QStringList &files)
{
    for (const QString &file : files) {
        m_thumbnails.remove(file);
        const QUuid request = m_requests.key(file);
        m_provider.drop(request);
        m_requests.remove(request);
    }
    const QSet<QString> forgotten(files.begin(), files.end());
    for (int row = 0; row < m_slides.size(); ++row) {
        if (forgotten.contains(fileOf(*m_slides.at(row))))
            emit dataChanged(index(row, NumberColumn), index(row, NumberColumn),
                             {Qt::DecorationRole});
    }
}

void SlideTableModel::setVisibleRows(int first, int last)
{
    QSet<QString> visible;
    for (int row = std::max(0, first); row <= last && row < m_slides.size(); ++row)
        visible.insert(fileOf(*m_slides.at(row)));
    for (auto request = m_requests.begin(); request != m_requests.end();) {
        if (visible.contains(request.value())) {
            ++request;
        } else {
            m_provider.drop(request.key());
            request = m_requests.erase(request);
        }
    }
}

ProjectItem *SlideTableModel::slideAt(int row) const
{
    return m_slides.value(row);
}

int SlideTableModel::rowOf(const ProjectItem *slide) const
{
    return m_rows.value(slide, -1);
}

int SlideTableModel::photoCount() const
{
    const bool hasTitle = qobject_cast<ProjectItemFirst *>(slideAt(0)) != nullptr;
    return m_slides.size() - (hasTitle ? 1 : 0);
}

int SlideTableModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_slides.size();
}

int SlideTableModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant SlideTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case NumberColumn:
        return QStringLiteral("#");
    case TimeColumn:
        return tr("Time");
    case TransitionColumn:
        return tr("Transition");
    case TextColumn:
        return tr("Text");
    default:
        return {};
    }
}

Qt::ItemFlags SlideTableModel::flags(const QModelIndex &index) const
{
    Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    if (!index.isValid())
        return flags;
    const bool isPhoto = qobject_cast<ProjectItemSimple *>(slideAt(index.row())) != nullptr;
    if (index.column() == TimeColumn || (index.column() == TransitionColumn && isPhoto))
        flags |= Qt::ItemIsEditable;
    if (isPhoto)
        flags |= Qt::ItemIsDragEnabled;
    return flags;
}

QVariant SlideTableModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const ProjectItem &slide = *m_slides.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
    case Qt::AccessibleTextRole:
        return text(slide, index.row(), index.column());
    case Qt::EditRole:
        return editValue(slide, index.column());
    case Qt::ToolTipRole:
        return toolTip(slide);
    case Qt::DecorationRole:
        return index.column() == NumberColumn ? QVariant(thumbnail(slide)) : QVariant();
    case MissingRole:
        return m_missing.isMissing(fileOf(slide));
    case ShownRole:
        return slide.isShown();
    case TitleRole:
        return slide.title();
    case TitleSlideRole:
        return qobject_cast<const ProjectItemFirst *>(&slide) != nullptr;
    default:
        return {};
    }
}

QVariant SlideTableModel::text(const ProjectItem &slide, int row, int column) const
{
    switch (column) {
    case NumberColumn:
        return QString::number(row + 1);
    case TimeColumn:
        return ValueLists::secondsText(slide.time());
    case TransitionColumn: {
        const QVariant transition = editValue(slide, column);
        return transition.isValid() ? translatedTransitionName(transition.toInt()) : QString();
    }
    default:
        return slide.caption().text.simplified();
    }
}

QVariant SlideTableModel::editValue(const ProjectItem &slide, int column) const
{
    const auto *photo = qobject_cast<const ProjectItemSimple *>(&slide);
    if (column == TimeColumn)
        return slide.time();
    if (column == TransitionColumn && photo)
        return photo->transition();
    return column == TextColumn ? QVariant(slide.caption().text) : QVariant();
}

QString SlideTableModel::toolTip(const ProjectItem &slide) const
{
    const QString file = fileOf(slide);
    if (file.isEmpty())
        return slide.isShown() ? slide.title() : tr("The title slide is not part of the video.");
    const QString path = QDir::toNativeSeparators(file);
    return m_missing.isMissing(file) ? tr("The photo %1 does not exist any more.").arg(path) : path;
}

bool SlideTableModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::EditRole || !(flags(index) & Qt::ItemIsEditable))
        return false;
    if (index.column() == TimeColumn)
        m_editor.setTime({slideAt(index.row())}, value.toInt());
    else
        m_editor.setTransition({slideAt(index.row())}, value.toInt());
    return true;
}

QImage SlideTableModel::thumbnail(const ProjectItem &slide) const
{
    if (const auto *title = qobject_cast<const ProjectItemFirst *>(&slide))
        return titleThumbnail(*title);
    const QString file = fileOf(slide);
    if (const QImage *image = m_thumbnails.object(file))
        return slide.angle() == 0 ? *image : image->transformed(QTransform().rotate(slide.angle()));
    if (!m_missing.isMissing(file))
        request(file);
    return {};
}

/// As it is in the video. Painted at once: it takes no file.
QImage SlideTableModel::titleThumbnail(const ProjectItemFirst &title) const
{
    constexpr int kDetail = 4; // letters are painted larger, for they have no half pixels
    const QSize size =
        m_editor.project()->resolution().scaled(devicePixels(kThumbnailBox), Qt::KeepAspectRatio);
    QJsonObject look;
    title.toJson(look);
    const QString key = QStringLiteral(":title/%1/%2").arg(size.width()).arg(size.height()) +
                        QString::fromUtf8(QJsonDocument(look).toJson(QJsonDocument::Compact));
    if (!m_thumbnails.contains(key)) {
        const FrameFormat format{size * kDetail};
        const QImage frame =
            SlideRenderer::captionedFrame(SlideRenderer::bareFrame(title, format), title);
        keep(key, frame.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    }
    const QImage *image = m_thumbnails.object(key);
    return image ? *image : QImage();
}

void SlideTableModel::keep(const QString &key, const QImage &thumbnail) const
{
    const auto kibibytes = static_cast<int>(thumbnail.sizeInBytes() / 1024) + 1;
    m_thumbnails.insert(key, new QImage(thumbnail), kibibytes);
}

void SlideTableModel::request(const QString &fileName) const
{
    for (const QString &requested : qAsConst(m_requests)) {
        if (requested == fileName)
            return;
    }
    m_requests.insert(m_provider.request(fileName), fileName);
}

void SlideTableModel::onThumbnailReady(const QUuid &id)
{
    const QString fileName = m_requests.take(id);
    const QImage image = m_provider.thumbnail(id);
    m_provider.drop(id);
    if (fileName.isEmpty() || image.isNull())
        return;
    keep(fileName, image);
    for (int row = 0; row < m_slides.size(); ++row) {
        if (fileOf(*m_slides.at(row)) == fileName) {
            const QModelIndex changed = index(row, NumberColumn);
            emit dataChanged(changed, changed, {Qt::DecorationRole});
        }
    }
}

void SlideTableModel::onSlideChanged(ProjectItem *slide)
{
    const int row = rowOf(slide);
    if (row < 0)
        return;
    emit dataChanged(index(row, 0), index(row, ColumnCount - 1));
    checkFiles(); // it may point to another file now
}

} // namespace velmora
