// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "project/documents/AudioItemList.h"
#include "project/slides/ProjectItem.h"

#include <QJsonObject>
#include <QObject>
#include <QSize>
#include <QStringList>
#include <QVector>

#include <memory>

namespace velmora
{

struct AppSettings;

/// The document of one slideshow. Owns its slides. Not thread-safe: one thread at a time.
class ProjectFile : public QObject
{
    Q_OBJECT
public:
    enum class TitleSlide { Create, Omit };

    /// Documents with more slides are refused (error word "images").
    static constexpr int kMaximumItems = 100 * 1000;
    /// Larger documents are refused unread. Bytes.
    static constexpr qint64 kMaximumFileSize = 100LL * 1000 * 1000;

    /// A new project with the defaults of @p settings, which must outlive it.
    ProjectFile(const AppSettings &settings, TitleSlide titleSlide, QObject *parent = nullptr);

    /// The name of a new project, in any language of the program.
    static QString defaultName();
    const QString &name() const { return m_name; }
    /// Whether the name is another one than a new project's, and not blank.
    bool hasOwnName() const;
    /// What the user is told: the name, or a new project's in the present language.
    QString shownName() const;
    void setName(const QString &name) { m_name = name; }
    const QString &fileName() const { return m_fileName; } ///< Path of the video to produce.
    void setFileName(const QString &fileName) { m_fileName = fileName; }
    const QString &format() const { return m_format; } ///< Container extension without a dot.
    void setFormat(const QString &format) { m_format = format; }
    QSize resolution() const { return m_resolution; } ///< Output size in px.
    void setResolution(const QSize &size) { m_resolution = size; }
    bool origRatio() const { return m_origRatio; }
    void setOrigRatio(bool on) { m_origRatio = on; }
    bool scaleToFit() const { return m_scaleToFit; }
    void setScaleToFit(bool on) { m_scaleToFit = on; }
    const AudioItemList &audio() const { return m_audio; }
    void setAudio(const AudioItemList &audio) { m_audio = audio; }
    bool audioLoop() const { return m_audioLoop; }
    void setAudioLoop(bool on) { m_audioLoop = on; }
    int audioFade() const { return m_audioFade; } ///< Seconds; 0 means no fade.
    void setAudioFade(int seconds) { m_audioFade = seconds; }

    const QVector<ProjectItem *> &items() const { return m_items; }
    /// Takes ownership; @p index -1 appends.
    void insertItem(int index, ProjectItem *item);
    /// Takes the slide out of the project; the caller owns it. Null if it is not in the project.
    ProjectItem *takeItem(ProjectItem *item);
    /// Moves @p item so that it stands directly before or after @p anchor.
    void moveItemBefore(ProjectItem *item, ProjectItem *anchor);
    void moveItemAfter(ProjectItem *item, ProjectItem *anchor);
    /// Appends a photo slide per path that has an accepted suffix, after resolving links.
    /// Returns the slides that were added.
    QVector<ProjectItem *> addFiles(const QStringList &paths, int timeSeconds, int transition);

    /// "transition_time" is taken from the settings at the moment of writing.
    void toJson(QJsonObject &object) const;
    /// The same with "transition_time" given in seconds: the settings may be another thread's.
    void toJson(QJsonObject &object, int transitionTime) const;
    /// Replaces the file as a whole or not at all; false and a log line on failure, whose text
    /// is also put into @p error where given.
    bool saveToFile(const QString &path, QString *error = nullptr) const;

    /// Rebuilds a project, or null; the reasons are appended to @p errors ("resolution",
    /// "images", "Failed load image info"). Accepts any object without crashing.
    static std::unique_ptr<ProjectFile>
    fromJson(const QJsonObject &object, const AppSettings &settings, QStringList *errors = nullptr);
    /// Reads a document from disk; null with a plain reason in @p error (unreadable, not JSON,
    /// not a project).
    static std::unique_ptr<ProjectFile> loadFromFile(const QString &path,
                                                     const AppSettings &settings, QString *error);

private:
    /// Reads into a project without slides; the word for what failed, or an empty text.
    QString read(const QJsonObject &object);
    QJsonObject audioToJson() const;
    void placeItem(ProjectItem *item, ProjectItem *anchor, int shift);

    const AppSettings &m_settings;
    QString m_name;
    QString m_fileName;
    QString m_format;
    QSize m_resolution;
    bool m_origRatio;
    bool m_scaleToFit;
    AudioItemList m_audio;
    bool m_audioLoop = false;
    int m_audioFade;
    QVector<ProjectItem *> m_items;
};

} // namespace velmora
