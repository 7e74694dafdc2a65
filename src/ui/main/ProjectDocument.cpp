// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/main/ProjectDocument.h"

#include "app/AppSettings.h"
#include "generator/pipeline/OutputTarget.h"
#include "project/documents/ProjectFile.h"
#include "ui/editor/MainWindowWidget.h"

#include <QFileInfo>

namespace velmora
{

ProjectDocument::ProjectDocument(MainWindowWidget &page, const AppSettings &settings,
                                 QObject *parent)
    : QObject(parent), m_page(page), m_settings(settings)
{
    connect(&page.editor(), &ProjectEditor::modifiedChanged, this, &ProjectDocument::stateChanged);
    connect(&page.editor(), &ProjectEditor::settingsChanged, this, &ProjectDocument::stateChanged);
    connect(&page, &MainWindowWidget::unsavedTextChanged, this, &ProjectDocument::stateChanged);
}

ProjectDocument::~ProjectDocument()
{
    disconnect(&m_page, nullptr, this, nullptr);
    disconnect(&m_page.editor(), nullptr, this, nullptr);
    m_page.setProject(nullptr);
}

bool ProjectDocument::isModified() const
{
    return m_project && (m_fileDiffers || m_page.editor().isModified() || m_page.hasUnsavedText());
}

bool ProjectDocument::hasUnsavedText() const
{
    return m_page.hasUnsavedText();
}

void ProjectDocument::toJson(QJsonObject &document) const
{
    m_page.toJson(document);
}

QString ProjectDocument::displayName() const
{
    if (!m_project)
        return {};
    return m_path.isEmpty() ? m_project->shownName() : QFileInfo(m_path).completeBaseName();
}

void ProjectDocument::begin()
{
    auto project = std::make_unique<ProjectFile>(m_settings, ProjectFile::TitleSlide::Create);
    // The first format of the menu; the project's own first value is not in it.
    project->setFormat(QStringLiteral("mp4"));
    AudioItemList audio;
    audio.offset = m_settings.audioOffset;
    project->setAudio(audio);
    replace(std::move(project), QString());
}

void ProjectDocument::replace(std::unique_ptr<ProjectFile> project, const QString &path,
                              bool modified)
{
    // The render would take another container than the name that the user is asked about.
    if (project && !OutputTarget::knownSuffixes().contains(project->format()))
        project->setFormat(QStringLiteral("mkv"));
    m_page.setProject(project.get());
    m_project.swap(project);
    m_path = path;
    m_fileDiffers = modified;
    emit replaced();
    emit stateChanged();
}

void ProjectDocument::close()
{
    replace(nullptr, QString());
}

void ProjectDocument::setName(const QString &name)
{
    m_page.editor().setName(name);
}

bool ProjectDocument::save(const QString &path, QString *error)
{
    if (!m_project)
        return false;
    m_page.saveText();
    if (!m_project->saveToFile(path, error))
        return false;
    m_path = path;
    setClean();
    return true;
}

void ProjectDocument::keptByHistory()
{
    if (m_path.isEmpty())
        setClean();
}

void ProjectDocument::setClean()
{
    m_fileDiffers = false;
    m_page.editor().markSaved();
    emit stateChanged();
}

} // namespace velmora
