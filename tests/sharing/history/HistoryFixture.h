// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/AppSettings.h"
#include "project/documents/HistoryStore.h"
#include "project/slides/ProjectItemFirst.h"
#include "project/slides/ProjectItemSimple.h"

#include <QDateTime>
#include <QFile>
#include <QTemporaryDir>

namespace velmora
{

/// A history file with videos in a folder of its own.
class HistoryFixture
{
public:
    HistoryFixture() : store(path("project_history.json"), settings) {}

    QString path(const char *name) const { return folder.filePath(QLatin1String(name)); }

    /// A slideshow with the title @p title that is not in the history yet.
    std::unique_ptr<ProjectFile> make(const char *name,
                                      const QString &title = QStringLiteral("Title")) const
    {
        auto project = std::make_unique<ProjectFile>(settings, ProjectFile::TitleSlide::Create);
        CaptionStyle caption;
        caption.text = title;
        project->items().first()->setCaption(caption);
        project->setName(QLatin1String(name));
        project->setFileName(path(name));
        project->setResolution({1024, 768});
        return project;
    }

    /// Adds one, with @p size bytes of video made on @p date, or no video at all for a size below
    /// 0.
    const ProjectFile *add(const char *name, qint64 size, const QDate &date,
                           const QString &title = QStringLiteral("Title"))
    {
        if (size >= 0)
            write(path(name), size, date);
        return store.add(make(name, title));
    }

    static void write(const QString &fileName, qint64 size, const QDate &date)
    {
        QFile file(fileName);
        if (file.open(QIODevice::WriteOnly) && file.resize(size))
            file.setFileTime(QDateTime(date, QTime(12, 0)), QFileDevice::FileModificationTime);
    }

    /// The names in the history file, oldest first.
    QStringList saved() const
    {
        HistoryStore read(path("project_history.json"), settings);
        read.load();
        QStringList names;
        for (const auto &project : read.projects())
            names.append(project->name());
        return names;
    }

    QTemporaryDir folder;
    AppSettings settings;
    HistoryStore store;
};

} // namespace velmora
