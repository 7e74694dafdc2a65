// SPDX-License-Identifier: GPL-3.0-or-later
#include "programs/velmoratool/MakeProject.h"

#include "generator/media/MediaFileInfo.h"
#include "programs/velmoratool/InputFiles.h"
#include "project/slides/ProjectItemFirst.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace velmora
{

namespace
{

/// The form in which projects keep the lengths of their music.
QString durationText(qint64 milliseconds)
{
    const qint64 seconds = milliseconds / 1000;
    return QStringLiteral("%1:%2:%3")
        .arg(seconds / 3600)
        .arg(seconds / 60 % 60, 2, 10, QLatin1Char('0'))
        .arg(seconds % 60, 2, 10, QLatin1Char('0'));
}

void setCaptionText(ProjectItem &item, const QString &text)
{
    CaptionStyle caption = item.caption();
    caption.text = text;
    caption.changed = true;
    item.setCaption(caption);
}

} // namespace

MakeProject::MakeProject(const MakeOptions &options, const AppSettings &settings)
    : m_options(options), m_settings(settings)
{
    m_settings.defaultTime = options.time.value_or(settings.defaultTime);
    m_settings.defaultTransition = options.transition.value_or(settings.defaultTransition);
    m_settings.transitionTime = options.transitionSeconds.value_or(settings.transitionTime);
    m_settings.audioFade = options.fade.value_or(settings.audioFade);
    m_settings.audioOffset = options.offset.value_or(settings.audioOffset);
    m_settings.speedGeneration = settings.speedGeneration || options.parallel;
    if (options.profile)
        m_settings.outputProfile = outputProfileKey(*options.profile);
    if (options.size.isValid())
        m_settings.resolution = options.size;
    if (options.stretch || options.originalSize) {
        m_settings.origRatio = !options.stretch;
        m_settings.scaleToFit = false;
    }
}

RenderError MakeProject::build()
{
    const RenderError error = m_options.projectFile.isEmpty() ? createProject() : loadProject();
    if (!error.isSet())
        applyOutput();
    return error;
}

RenderError MakeProject::loadProject()
{
    QString reason;
    if (!m_request.load(m_options.projectFile, m_settings, &reason))
        return {RenderErrorCode::kRequest,
                QCoreApplication::translate("velmora::MakeProject",
                                            "The project \"%1\" cannot be used: %2")
                    .arg(m_options.projectFile, reason)};
    m_request.parallel = m_request.parallel || m_options.parallel;
    m_request.profile = m_options.profile.value_or(m_request.profile);
    m_settings.transitionTime = m_request.transitionSeconds;
    m_settings.speedGeneration = m_request.parallel;
    m_settings.outputProfile = outputProfileKey(m_request.profile);
    if (m_options.size.isValid())
        m_request.project->setResolution(m_options.size);
    return {};
}

RenderError MakeProject::createProject()
{
    QStringList errors;
    const QStringList photos = InputFiles::photos(m_options.photos, m_options.order, &errors);
    const QStringList music = InputFiles::music(m_options.music, &errors);
    if (!errors.isEmpty())
        return {RenderErrorCode::kInput, errors.join(QLatin1Char('\n'))};
    m_request.project = std::make_unique<ProjectFile>(m_settings, ProjectFile::TitleSlide::Create);
    m_request.transitionSeconds = m_settings.transitionTime;
    m_request.parallel = m_settings.speedGeneration;
    m_request.profile = outputProfileFromKey(m_settings.outputProfile);
    addSlides(photos);
    addMusic(music);
    return {};
}

void MakeProject::addSlides(const QStringList &photos)
{
    ProjectFile &project = *m_request.project;
    if (auto *title = qobject_cast<ProjectItemFirst *>(project.items().value(0))) {
        title->setVisible(!m_options.title.isEmpty());
        if (title->isShown())
            setCaptionText(*title, m_options.title);
    }
    const QVector<ProjectItem *> slides =
        project.addFiles(photos, m_settings.defaultTime, m_settings.defaultTransition);
    if (!m_options.captionsFromNames)
        return;
    for (int i = 0; i < slides.size(); ++i)
        setCaptionText(*slides.at(i), captionFromName(photos.at(i)));
}

void MakeProject::addMusic(const QStringList &files)
{
    AudioItemList audio;
    audio.offset = m_settings.audioOffset;
    for (const QString &file : files)
        audio.items.append({file, durationText(MediaFileInfo(file).duration())});
    m_request.project->setAudio(audio);
    m_request.project->setAudioLoop(m_options.loop);
}

void MakeProject::applyOutput()
{
    if (m_options.output.isEmpty())
        return;
    const QFileInfo output(m_options.output);
    ProjectFile &project = *m_request.project;
    project.setFileName(output.absoluteFilePath());
    project.setFormat(output.suffix().toLower());
    if (m_options.projectFile.isEmpty())
        project.setName(output.completeBaseName());
}

QString captionFromName(const QString &path)
{
    return QFileInfo(path)
        .completeBaseName()
        .replace(QLatin1Char('_'), QLatin1Char(' '))
        .simplified();
}

} // namespace velmora
