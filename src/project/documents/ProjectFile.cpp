// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/documents/ProjectFile.h"

#include "app/AppSettings.h"
#include "platform/ShortcutResolver.h"
#include "project/ProjectLog.h"
#include "project/documents/JsonFile.h"
#include "project/documents/MediaSuffixes.h"
#include "project/slides/JsonValues.h"
#include "project/slides/ProjectItemFirst.h"
#include "project/slides/ProjectItemSimple.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <iterator>

namespace velmora
{

namespace
{

const QLatin1String kName("name");
const QLatin1String kFileName("file_name");
const QLatin1String kFormat("format");
const QLatin1String kResolution("resolution");
const QLatin1String kOrigRatio("orig_ratio");
const QLatin1String kScaleToFit("scale_to_fit");
const QLatin1String kAudio("audio");
const QLatin1String kOffset("offset");
const QLatin1String kLoop("loop");
const QLatin1String kFade("fade");
const QLatin1String kFiles("files");
const QLatin1String kDuration("duration");
const QLatin1String kImages("images");
const QLatin1String kTransitionTime("transition_time");

/// The name of a new project as documents have it that were made in other languages.
const char *const kDefaultNames[] = {
    "New project",
    "Neues Projekt",
    "Nuevo proyecto",
    "Nouveau projet",
    "Nuovo progetto",
    "Nowy projekt",
    u8"\u041D\u043E\u0432\u044B\u0439 \u043F\u0440\u043E\u0435\u043A\u0442", // Russian
    u8"\u65B0\u3057\u3044\u30D7\u30ED\u30B8\u30A7\u30AF\u30C8",              // Japanese
    u8"\u65B0\u9879\u76EE",                                                  // Chinese
};

/// Words with which a failed read names its cause.
const QLatin1String kResolutionError("resolution");
const QLatin1String kItemError("Failed load image info");
const QLatin1String kTooManyItemsError("images");

AudioItemList readAudioFiles(const QJsonObject &object)
{
    AudioItemList audio;
    audio.offset = readInt(object, kOffset);
    const QJsonArray files = object.value(kFiles).toArray();
    for (const QJsonValue &value : files) {
        const QJsonObject file = value.toObject();
        audio.items.append({file.value(kFileName).toString(), file.value(kDuration).toString()});
    }
    return audio;
}

} // namespace

ProjectFile::ProjectFile(const AppSettings &settings, TitleSlide titleSlide, QObject *parent)
    : QObject(parent), m_settings(settings), m_name(defaultName()), m_format(QStringLiteral("mkv")),
      m_resolution(settings.resolution), m_origRatio(settings.origRatio),
      m_scaleToFit(settings.scaleToFit), m_audioFade(settings.audioFade)
{
    if (titleSlide == TitleSlide::Create) {
        m_items.append(new ProjectItemFirst(settings.defaultTime, this));
    }
}

void ProjectFile::insertItem(int index, ProjectItem *item)
{
    item->setParent(this);
    m_items.insert(index < 0 || index > m_items.size() ? m_items.size() : index, item);
}

ProjectItem *ProjectFile::takeItem(ProjectItem *item)
{
    if (!m_items.removeOne(item)) {
        return nullptr;
    }
    item->setParent(nullptr);
    return item;
}

void ProjectFile::moveItemBefore(ProjectItem *item, ProjectItem *anchor)
{
    placeItem(item, anchor, 0);
}

void ProjectFile::moveItemAfter(ProjectItem *item, ProjectItem *anchor)
{
    placeItem(item, anchor, 1);
}

void ProjectFile::placeItem(ProjectItem *item, ProjectItem *anchor, int shift)
{
    const int from = m_items.indexOf(item);
    const int anchorIndex = m_items.indexOf(anchor);
    if (from < 0 || anchorIndex < 0 || item == anchor) {
        return;
    }
    qCDebug(lcProject) << "move item" << item->title() << "from" << from
                       << (shift > 0 ? "after" : "before") << anchorIndex;
    m_items.removeAt(from);
    m_items.insert(m_items.indexOf(anchor) + shift, item);
}

QString ProjectFile::defaultName()
{
    return QStringLiteral("New project");
}

bool ProjectFile::hasOwnName() const
{
    const auto isName = [this](const char *name) { return m_name == QString::fromUtf8(name); };
    return !m_name.trimmed().isEmpty() &&
           std::none_of(std::begin(kDefaultNames), std::end(kDefaultNames), isName);
}

QString ProjectFile::shownName() const
{
    return hasOwnName() ? m_name : tr("New project");
}

QVector<ProjectItem *> ProjectFile::addFiles(const QStringList &paths, int timeSeconds,
                                             int transition)
{
    QVector<ProjectItem *> added;
    for (const QString &path : paths) {
        QString target = resolveShortcut(path);
        if (target != path) {
            qCDebug(lcProject) << "File" << path << "is shortcut";
        }
        if (target.isEmpty()) {
            // A dangling link stays in the list, so that the user is told which photo is missing.
            target = path;
        }
        if (isPhotoPath(target)) {
            const QString fileName = QFileInfo(target).absoluteFilePath();
            added.append(new ProjectItemSimple(fileName, timeSeconds, transition, this));
        }
    }
    m_items += added;
    return added;
}

void ProjectFile::toJson(QJsonObject &object) const
{
    toJson(object, m_settings.transitionTime);
}

void ProjectFile::toJson(QJsonObject &object, int transitionTime) const
{
    object.insert(kName, m_name);
    object.insert(kFileName, m_fileName);
    object.insert(kFormat, m_format);
    object.insert(kResolution, resolutionToText(m_resolution));
    object.insert(kOrigRatio, m_origRatio);
    object.insert(kScaleToFit, m_scaleToFit);
    object.insert(kAudio, audioToJson());
    QJsonArray images;
    for (const ProjectItem *item : m_items) {
        QJsonObject image;
        item->toJson(image);
        images.append(image);
    }
    object.insert(kImages, images);
    object.insert(kTransitionTime, transitionTime);
}

QJsonObject ProjectFile::audioToJson() const
{
    QJsonArray files;
    for (const AudioItem &item : m_audio.items) {
        files.append(QJsonObject{{kFileName, item.fileName}, {kDuration, item.duration}});
    }
    return {{kOffset, m_audio.offset}, {kLoop, m_audioLoop}, {kFade, m_audioFade}, {kFiles, files}};
}

bool ProjectFile::saveToFile(const QString &path, QString *error) const
{
    QJsonObject object;
    toJson(object);
    QString reason;
    if (JsonFile::write(path, QJsonDocument(object).toJson(QJsonDocument::Indented), &reason)) {
        return true;
    }
    qCCritical(lcProject).noquote()
        << QStringLiteral("Save file '%1' failed:'%2'").arg(path, reason);
    if (error) {
        *error = reason;
    }
    return false;
}

std::unique_ptr<ProjectFile> ProjectFile::fromJson(const QJsonObject &object,
                                                   const AppSettings &settings, QStringList *errors)
{
    auto project = std::make_unique<ProjectFile>(settings, TitleSlide::Omit);
    const QString failure = project->read(object);
    if (failure.isEmpty()) {
        return project;
    }
    if (errors) {
        errors->append(failure);
    }
    return nullptr;
}

QString ProjectFile::read(const QJsonObject &object)
{
    m_name = object.value(kName).toString();
    m_fileName = object.value(kFileName).toString();
    m_format = object.value(kFormat).toString();
    m_resolution = resolutionFromText(object.value(kResolution).toString());
    if (!m_resolution.isValid()) {
        return kResolutionError;
    }
    m_origRatio = object.value(kOrigRatio).toBool();
    m_scaleToFit = object.value(kScaleToFit).toBool();

    const QJsonObject audio = object.value(kAudio).toObject();
    m_audio = readAudioFiles(audio);
    m_audioLoop = audio.value(kLoop).toBool();
    m_audioFade = readInt(audio, kFade);

    const QJsonArray images = object.value(kImages).toArray();
    if (images.size() > kMaximumItems) {
        return kTooManyItemsError;
    }
    m_items.reserve(images.size());
    for (const QJsonValue &image : images) {
        ProjectItem *item = ProjectItem::fromJson(image.toObject(), this);
        if (!item) {
            return kItemError;
        }
        m_items.append(item);
    }
    return QString();
}

std::unique_ptr<ProjectFile> ProjectFile::loadFromFile(const QString &path,
                                                       const AppSettings &settings, QString *error)
{
    QByteArray content;
    QString reason;
    std::unique_ptr<ProjectFile> project;
    if (JsonFile::readAll(path, kMaximumFileSize, &content, &reason)) {
        QJsonParseError parseError;
        const QJsonDocument document = QJsonDocument::fromJson(content, &parseError);
        QStringList errors;
        if (document.isObject()) {
            project = fromJson(document.object(), settings, &errors);
        }
        if (parseError.error != QJsonParseError::NoError) {
            reason = tr("The file is not a valid JSON document: %1.").arg(parseError.errorString());
        } else if (!document.isObject()) {
            reason = tr("The file is not a project document.");
        } else if (!project) {
            reason = tr("The project document cannot be used, faulty field: %1.")
                         .arg(errors.join(QLatin1String(", ")));
        }
    }
    if (!project && error) {
        *error = reason;
    }
    return project;
}

} // namespace velmora
