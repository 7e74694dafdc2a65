// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/history/HistoryModel.h"

#include "app/AppSettings.h"
#include "project/documents/HistoryStore.h"
#include "project/documents/MediaSuffixes.h"
#include "project/documents/Timeline.h"
#include "sharing/history/VideoProber.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <numeric>

namespace velmora
{

HistoryModel::HistoryModel(const HistoryStore &history, const AppSettings &settings,
                           QObject *parent)
    : QAbstractListModel(parent), m_history(history), m_settings(settings),
      m_prober(new VideoProber(this))
{
    connect(m_prober, &VideoProber::looked, this, &HistoryModel::onLooked);
    connect(m_prober, &VideoProber::probed, this, &HistoryModel::onProbed);
}

int HistoryModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_order.size();
}

QVariant HistoryModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const QString &path = m_entries.at(m_order.at(index.row())).fileName;
    switch (role) {
    case Qt::DisplayRole:
        return QFileInfo(path).fileName();
    case Qt::ToolTipRole:
        return QDir::toNativeSeparators(path);
    default:
        return {};
    }
}

void HistoryModel::reload()
{
    beginResetModel();
    QHash<QString, VideoFacts> known;
    for (const HistoryEntry &entry : qAsConst(m_entries))
        known.insert(entry.fileName, entry.facts);
    m_entries.clear();
    QStringList files;
    for (const auto &project : m_history.projects()) {
        m_entries.append({project.get(), project->fileName(), known.value(project->fileName())});
        files.append(project->fileName());
    }
    sort();
    endResetModel();
    m_prober->look(files);
}

const ProjectFile *HistoryModel::project(int row) const
{
    return row >= 0 && row < m_order.size() ? m_entries.at(m_order.at(row)).project : nullptr;
}

HistoryEntry HistoryModel::entry(int row) const
{
    if (row < 0 || row >= m_order.size())
        return {};
    HistoryEntry entry = m_entries.at(m_order.at(row));
    entry.facts.duration = m_prober->duration(entry.fileName, entry.facts);
    if (entry.facts.duration <= 0) // Not opened yet, or it does not say.
        entry.facts.duration =
            Timeline::ofProject(*entry.project, m_settings.transitionTime).totalLength();
    return entry;
}

int HistoryModel::rowOf(const ProjectFile *project) const
{
    for (int row = 0; row < m_order.size(); ++row) {
        if (m_entries.at(m_order.at(row)).project == project)
            return row;
    }
    return -1;
}

int HistoryModel::rowOf(const QString &fileName) const
{
    for (int i = m_entries.size() - 1; i >= 0; --i) {
        if (m_entries.at(i).fileName == fileName)
            return m_order.indexOf(i);
    }
    return -1;
}

void HistoryModel::sortBy(Key key)
{
    m_ascending = key == m_key ? !m_ascending : key == Key::FileName;
    m_key = key;
    sortRows();
}

/// The history is in the order of production; a video that is gone stands where it was made.
QVector<qint64> HistoryModel::dateKeys() const
{
    QVector<qint64> keys;
    keys.reserve(m_entries.size());
    qint64 before = 0;
    for (const HistoryEntry &entry : m_entries) {
        if (entry.facts.date.isValid())
            before = entry.facts.date.toMSecsSinceEpoch();
        keys.append(before);
    }
    return keys;
}

/// Sorts what is shown, so that selection and widgets move with their rows.
void HistoryModel::sortRows()
{
    const QVector<int> before = m_order;
    emit layoutAboutToBeChanged();
    sort();
    const QModelIndexList from = persistentIndexList();
    QModelIndexList to;
    for (const QModelIndex &index : from)
        to.append(this->index(m_order.indexOf(before.at(index.row()))));
    changePersistentIndexList(from, to);
    emit layoutChanged();
}

void HistoryModel::sort()
{
    m_order.resize(m_entries.size());
    std::iota(m_order.begin(), m_order.end(), 0);
    if (m_key == Key::Date) {
        const QVector<qint64> keys = dateKeys();
        std::stable_sort(m_order.begin(), m_order.end(),
                         [&keys](int a, int b) { return keys.at(a) < keys.at(b); });
    } else {
        const QCollator collator = naturalCollator();
        std::vector<QCollatorSortKey> keys;
        keys.reserve(static_cast<size_t>(m_entries.size()));
        for (const HistoryEntry &entry : qAsConst(m_entries))
            keys.push_back(collator.sortKey(QFileInfo(entry.fileName).fileName()));
        std::stable_sort(m_order.begin(), m_order.end(), [&keys](int a, int b) {
            return keys[static_cast<size_t>(a)] < keys[static_cast<size_t>(b)];
        });
    }
    if (!m_ascending)
        std::reverse(m_order.begin(), m_order.end());
}

void HistoryModel::onLooked(const QHash<QString, VideoFacts> &facts)
{
    for (HistoryEntry &entry : m_entries) {
        const auto found = facts.constFind(entry.fileName);
        if (found != facts.constEnd())
            entry.facts = *found;
    }
    sortRows();
    if (!m_order.isEmpty())
        emit dataChanged(index(0), index(m_order.size() - 1));
}

void HistoryModel::probe(int row)
{
    if (row < 0 || row >= m_order.size())
        return;
    const HistoryEntry &entry = m_entries.at(m_order.at(row));
    if (entry.facts.exists && m_prober->duration(entry.fileName, entry.facts) < 0)
        m_prober->probe(entry.fileName);
}

void HistoryModel::onProbed(const QString &fileName, const VideoFacts &facts)
{
    // The file may have changed since the list was read; with the facts of then, its duration would
    // be asked for again and again.
    bool moved = false;
    for (HistoryEntry &entry : m_entries) {
        if (entry.fileName != fileName)
            continue;
        moved = moved || entry.facts.date != facts.date;
        entry.facts = facts;
    }
    if (moved)
        sortRows();
    for (int row = 0; row < m_order.size(); ++row) {
        if (m_entries.at(m_order.at(row)).fileName == fileName)
            emit dataChanged(index(row), index(row));
    }
}

} // namespace velmora
