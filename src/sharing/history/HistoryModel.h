// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sharing/history/VideoFacts.h"

#include <QAbstractListModel>
#include <QVector>

namespace velmora
{

struct AppSettings;
class HistoryStore;
class ProjectFile;
class VideoProber;

/// One produced video, ready to be shown.
struct HistoryEntry {
    const ProjectFile *project = nullptr;
    QString fileName; ///< Full path.
    VideoFacts facts; ///< The duration is the project's as long as the video was not probed.
};

/// The history's entries in the order in which they are shown. The facts about the videos follow
/// after a moment, since they are read on another thread. GUI thread.
class HistoryModel : public QAbstractListModel
{
    Q_OBJECT
public:
    enum class Key { Date, FileName };

    HistoryModel(const HistoryStore &history, const AppSettings &settings,
                 QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = {}) const override;
    /// The file's name for display, the full path as tool tip.
    QVariant data(const QModelIndex &index, int role) const override;

    /// Reads the list from the history again. Between a change of the history and this call only
    /// project() may be used, for comparing.
    void reload();
    const ProjectFile *project(int row) const; ///< Null where there is no such row.
    /// A copy, so that it can be kept over changes of the model.
    HistoryEntry entry(int row) const;
    /// The row of an entry; -1 when it is not listed.
    int rowOf(const ProjectFile *project) const;
    /// The row of the newest entry that made @p fileName; -1 for none.
    int rowOf(const QString &fileName) const;

    Key sortKey() const { return m_key; }
    bool isAscending() const { return m_ascending; }
    /// Sorts by @p key, and the other way round where it was sorted so already.
    void sortBy(Key key);

    /// Asks for what only the video itself knows; dataChanged() follows.
    void probe(int row);

private:
    void onLooked(const QHash<QString, VideoFacts> &facts);
    void onProbed(const QString &fileName, const VideoFacts &facts);
    void sort();
    void sortRows();
    QVector<qint64> dateKeys() const;

    const HistoryStore &m_history;
    const AppSettings &m_settings;
    VideoProber *m_prober;
    QVector<HistoryEntry> m_entries; ///< In the history's order.
    QVector<int> m_order;            ///< Row to index in m_entries.
    Key m_key = Key::Date;
    bool m_ascending = false;
};

} // namespace velmora
