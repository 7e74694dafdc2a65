// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "project/documents/AudioItemList.h"
#include "ui/audio/AudioProber.h"
#include "ui/model/MissingFiles.h"

#include <QAbstractListModel>
#include <QHash>
#include <QOperatingSystemVersion>
#include <QPersistentModelIndex>
#include <QQueue>

namespace velmora
{

class ProjectEditor;
class TrackPlayer;

/// The playlist of the project as an item model, and what can be done with it. Every edit goes
/// through the ProjectEditor and can be undone; the rows follow its signals. Files are looked at on
/// another thread, in the order in which they were added. One track is listened to at a time.
/// GUI thread.
class AudioFilesController : public QAbstractListModel
{
    Q_OBJECT
public:
    enum Role {
        DurationRole = Qt::UserRole, ///< QString
        PlayingRole,                 ///< bool: is being listened to.
        ProgressRole,                ///< double, 0 to 1: how much of it was heard.
        BrokenRole,                  ///< bool: the file is gone or cannot be read.
    };

    explicit AudioFilesController(ProjectEditor &editor, QObject *parent = nullptr);
    ~AudioFilesController() override;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

    qint64 totalTime() const; ///< ms
    bool isAdding() const { return m_prober.isAdding(); }
    /// The row that is listened to; -1: none.
    int playingRow() const;
    /// The filter of the dialog that asks for sound files.
    static QString
    dialogFilter(const QOperatingSystemVersion &system = QOperatingSystemVersion::current());

public slots:
    /// Files, folders with their subfolders, and shortcuts to either go after the row @p newRow;
    /// negative: to the end. All files of a call are added as one step, when all were looked at:
    /// behind the same track, wherever it is by then.
    void addFiles(const QStringList &files, int newRow);
    /// Forgets the files that are still to be looked at.
    void cancelAdding();
    /// Looks anew which files exist, such as after the user came back from another program.
    void checkFiles();
    void remove(const QVector<int> &rows);
    /// Moves @p rows (ascending) to directly before the row @p before, as counted before the move.
    void move(const QVector<int> &rows, int before);
    void play(int row);
    void stop();

signals:
    /// After every change of the list, and when the length of a track became known. @p timeMs in
    /// ms.
    void paramsChanged(int count, qint64 timeMs);
    void audioChanged();
    /// Once per addFiles() of which some files were not added.
    void notAllAdded(const QStringList &files);
    void addingChanged(int looked); ///< Files were added, looked at, or all are.
    void playingChanged();
    void playFailed(const QString &fileName, const QString &reason);

private:
    /// Where files go that are being looked at.
    struct Place {
        QPersistentModelIndex before; ///< Invalid: at the end, or that track was deleted.
        int row = -1;                 ///< As it was when they were added.
    };

    void reload();
    void follow();
    void replace(int first, int removed, const QVector<AudioItem> &added);
    bool followMove(int first, const QVector<AudioItem> &after);
    void measureUnknown();
    void onFound(const AudioImport &import);
    void onMissingChanged();
    void onMeasured(const QString &path, qint64 milliseconds);
    void refreshPlaying();
    void announce();
    QString nameOf(const AudioItem &item) const;

    ProjectEditor &m_editor;
    QVector<AudioItem> m_items;
    QHash<QString, qint64> m_times; ///< ms by path; unreadable files have -1.
    QQueue<Place> m_places;         ///< One for each addition that has not ended.
    MissingFiles m_missing;
    AudioProber m_prober;
    TrackPlayer *m_player;
    QPersistentModelIndex m_playing;
};

} // namespace velmora
