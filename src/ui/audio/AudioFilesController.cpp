// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/audio/AudioFilesController.h"

#include "project/documents/MediaSuffixes.h"
#include "project/documents/ProjectFile.h"
#include "ui/UiLog.h"
#include "ui/audio/TrackPlayer.h"
#include "ui/model/ProjectEditor.h"
#include "ui/model/ValueLists.h"

#include <QDir>
#include <QFileInfo>
#include <QUndoStack>

#include <algorithm>

namespace velmora
{

namespace
{

/// The time in ms that a text of two or three numbers with colons tells; 0 for other texts.
qint64 timeOf(const QString &text)
{
    constexpr qint64 kSixty = 60;
    qint64 seconds = 0;
    const QStringList parts = text.split(QLatin1Char(':'));
    for (const QString &part : parts) {
        bool isNumber = false;
        const int value = part.toInt(&isNumber);
        if (!isNumber || value < 0 || parts.size() > 3)
            return 0;
        seconds = seconds * kSixty + value;
    }
    return seconds * 1000;
}

} // namespace

AudioFilesController::AudioFilesController(ProjectEditor &editor, QObject *parent)
    : QAbstractListModel(parent), m_editor(editor), m_player(new TrackPlayer(this))
{
    connect(&m_editor, &ProjectEditor::projectChanged, this, &AudioFilesController::reload);
    connect(&m_editor, &ProjectEditor::audioChanged, this, &AudioFilesController::follow);
    connect(&m_prober, &AudioProber::found, this, &AudioFilesController::onFound);
    connect(&m_prober, &AudioProber::measured, this, &AudioFilesController::onMeasured);
    connect(&m_missing, &MissingFiles::changed, this, &AudioFilesController::onMissingChanged);
    connect(&m_missing, &MissingFiles::touched, this, [this](const QStringList &files) {
        for (const QString &file : files)
            m_prober.measure(file);
    });
    connect(&m_prober, &AudioProber::progress, this, &AudioFilesController::addingChanged);
    connect(m_player, &TrackPlayer::ended, this, &AudioFilesController::stop);
    connect(m_player, &TrackPlayer::failed, this, &AudioFilesController::playFailed);
    connect(m_player, &TrackPlayer::progressChanged, this, &AudioFilesController::refreshPlaying);
    reload();
}

AudioFilesController::~AudioFilesController() = default;

int AudioFilesController::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_items.size();
}

QVariant AudioFilesController::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const AudioItem &item = m_items.at(index.row());
    const bool isBroken = m_times.value(item.fileName) < 0;
    switch (role) {
    case Qt::DisplayRole:
        return nameOf(item);
    case Qt::ToolTipRole: {
        const QString path = QDir::toNativeSeparators(item.fileName);
        return isBroken ? tr("%1 cannot be read.").arg(path) : path;
    }
    case Qt::AccessibleTextRole:
        return isBroken ? tr("%1, cannot be read").arg(nameOf(item))
                        : tr("%1, length %2").arg(nameOf(item), item.duration);
    case DurationRole:
        return item.duration;
    case PlayingRole:
        return index == m_playing;
    case ProgressRole:
        return index == m_playing ? m_player->progress() : 0;
    case BrokenRole:
        return isBroken;
    default:
        return {};
    }
}

Qt::ItemFlags AudioFilesController::flags(const QModelIndex &index) const
{
    if (!index.isValid())
        return Qt::ItemIsDropEnabled;
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled |
           Qt::ItemNeverHasChildren;
}

QString AudioFilesController::nameOf(const AudioItem &item) const
{
    return QFileInfo(item.fileName).fileName();
}

qint64 AudioFilesController::totalTime() const
{
    qint64 total = 0;
    for (const AudioItem &item : m_items) {
        const auto known = m_times.constFind(item.fileName);
        total += known == m_times.cend() ? timeOf(item.duration) : std::max<qint64>(0, *known);
    }
    return total;
}

QString AudioFilesController::dialogFilter(const QOperatingSystemVersion &system)
{
    QStringList patterns = audioSuffixes(system);
    for (QString &pattern : patterns)
        pattern.prepend(QLatin1String("*."));
    return tr("Audio Files (%1)").arg(patterns.join(QLatin1Char(' ')));
}

void AudioFilesController::reload()
{
    m_prober.cancel();
    cancelAdding();
    stop();
    beginResetModel();
    m_items = m_editor.project() ? m_editor.project()->audio().items : QVector<AudioItem>();
    m_times.clear();
    endResetModel();
    measureUnknown();
    announce();
}

/// Finds out what changed, so that views keep their selection and place.
void AudioFilesController::follow()
{
    const QVector<AudioItem> after =
        m_editor.project() ? m_editor.project()->audio().items : QVector<AudioItem>();
    const int common = std::min(m_items.size(), after.size());
    int first = 0;
    while (first < common && m_items.at(first) == after.at(first))
        ++first;
    int same = 0; // at the end
    while (same < common - first &&
           m_items.at(m_items.size() - 1 - same) == after.at(after.size() - 1 - same))
        ++same;
    if (!followMove(first, after))
        replace(first, m_items.size() - first - same,
                after.mid(first, after.size() - first - same));
    if (m_player && !m_playing.isValid())
        stop(); // what was playing has left the list
    measureUnknown();
    announce();
}

/// Follows the move of a single row, if that is the change; @p first is the first row that differs.
bool AudioFilesController::followMove(int first, const QVector<AudioItem> &after)
{
    if (after.size() != m_items.size() || first >= after.size())
        return false;
    int last = after.size() - 1;
    while (m_items.at(last) == after.at(last))
        --last;
    QVector<AudioItem> down = m_items;
    down.move(first, last);
    QVector<AudioItem> up = m_items;
    up.move(last, first);
    if (down == after)
        beginMoveRows({}, first, first, {}, last + 1);
    else if (up == after)
        beginMoveRows({}, last, last, {}, first);
    else
        return false;
    m_items = after;
    endMoveRows();
    return true;
}

void AudioFilesController::replace(int first, int removed, const QVector<AudioItem> &added)
{
    if (removed > 0) {
        beginRemoveRows({}, first, first + removed - 1);
        m_items.remove(first, removed);
        endRemoveRows();
    }
    if (!added.isEmpty()) {
        beginInsertRows({}, first, first + added.size() - 1);
        for (int i = 0; i < added.size(); ++i)
            m_items.insert(first + i, added.at(i));
        endInsertRows();
    }
}

/// Files that came with a project were measured long ago, and may be gone since.
void AudioFilesController::measureUnknown()
{
    for (const AudioItem &item : qAsConst(m_items)) {
        if (!m_times.contains(item.fileName)) {
            m_times.insert(item.fileName, timeOf(item.duration));
            m_prober.measure(item.fileName);
        }
    }
    checkFiles();
}

void AudioFilesController::checkFiles()
{
    QStringList files;
    for (const AudioItem &item : qAsConst(m_items))
        files.append(item.fileName);
    if (!files.isEmpty())
        m_missing.check(files);
}

/// Those that came back are measured anew.
void AudioFilesController::onMissingChanged()
{
    for (const AudioItem &item : qAsConst(m_items)) {
        if (m_missing.isMissing(item.fileName) && m_times.value(item.fileName) >= 0)
            onMeasured(item.fileName, -1);
    }
}

void AudioFilesController::onMeasured(const QString &path, qint64 milliseconds)
{
    m_times.insert(path, milliseconds);
    for (int row = 0; row < m_items.size(); ++row) {
        if (m_items.at(row).fileName == path)
            emit dataChanged(index(row), index(row));
    }
    emit paramsChanged(m_items.size(), totalTime());
}

void AudioFilesController::addFiles(const QStringList &files, int newRow)
{
    const int row = newRow < 0 ? -1 : newRow + 1;
    qCDebug(lcUi).noquote() << QStringLiteral("NEW AUDIO ROW:'%1' AFTER:'%2'").arg(row).arg(newRow);
    if (files.isEmpty() || !m_editor.project())
        return;
    m_places.enqueue({newRow < 0 ? QModelIndex() : index(newRow), row});
    m_prober.add(files);
    emit addingChanged(0);
}

void AudioFilesController::onFound(const AudioImport &import)
{
    QVector<AudioItem> items;
    for (const AudioImport::Track &track : import.tracks) {
        m_times.insert(track.path, track.milliseconds);
        items.append({track.path, ValueLists::durationText(track.milliseconds)});
    }
    const Place place = m_places.dequeue();
    if (!items.isEmpty())
        m_editor.addAudio(items, place.before.isValid() ? place.before.row() + 1 : place.row);
    emit addingChanged(0);
    if (!import.refused.isEmpty())
        emit notAllAdded(import.refused);
}

void AudioFilesController::cancelAdding()
{
    m_prober.cancelAdding();
    m_places.clear();
    emit addingChanged(0);
}

void AudioFilesController::remove(const QVector<int> &rows)
{
    QVector<int> known;
    for (const int row : rows) {
        if (row < 0 || row >= m_items.size())
            continue;
        known.append(row);
        qCDebug(lcUi).noquote() << "Audio deleted:" << m_items.at(row).fileName;
    }
    if (!known.isEmpty())
        m_editor.removeAudio(known);
}

void AudioFilesController::move(const QVector<int> &rows, int before)
{
    QVector<QPair<int, int>> moves;
    int place = before;
    for (int i = rows.size() - 1; i >= 0; --i) {
        if (rows.at(i) < before)
            moves.append({rows.at(i), --place});
    }
    place = before;
    for (const int row : rows) {
        if (row >= before)
            moves.append({row, place++});
    }
    moves.erase(std::remove_if(moves.begin(), moves.end(),
                               [](const auto &step) { return step.first == step.second; }),
                moves.end());
    if (moves.isEmpty())
        return;
    m_editor.beginStep(QT_TRANSLATE_NOOP("velmora::ProjectEditor", "Move audio"));
    for (const auto &step : qAsConst(moves)) {
        qCDebug(lcUi).noquote()
            << QStringLiteral("Audio moved: %1>>%2").arg(step.first).arg(step.second);
        m_editor.moveAudio(step.first, step.second);
    }
    m_editor.endStep();
}

int AudioFilesController::playingRow() const
{
    return m_playing.isValid() ? m_playing.row() : -1;
}

void AudioFilesController::play(int row)
{
    if (row < 0 || row >= m_items.size())
        return;
    const QPersistentModelIndex before = m_playing;
    m_playing = index(row);
    if (before.isValid())
        emit dataChanged(before, before);
    m_player->play(m_items.at(row).fileName);
    refreshPlaying();
    emit playingChanged();
}

void AudioFilesController::stop()
{
    const QPersistentModelIndex before = m_playing;
    m_playing = QPersistentModelIndex();
    m_player->stop();
    if (before.isValid())
        emit dataChanged(before, before);
    emit playingChanged();
}

void AudioFilesController::refreshPlaying()
{
    if (m_playing.isValid())
        emit dataChanged(m_playing, m_playing);
}

void AudioFilesController::announce()
{
    emit paramsChanged(m_items.size(), totalTime());
    emit audioChanged();
}

} // namespace velmora
