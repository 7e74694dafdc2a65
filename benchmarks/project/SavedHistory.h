// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/AppSettings.h"
#include "project/documents/HistoryStore.h"

#include <QTemporaryDir>

namespace velmora
{

/// A history with projects of 100 slides each, every third with a caption, saved to a file.
class SavedHistory
{
public:
    explicit SavedHistory(int projects) : m_store(path(), m_settings)
    {
        for (int i = 0; i < projects; ++i) {
            m_store.add(makeProject(i));
        }
        m_store.save();
    }
    QString path() const { return m_folder.filePath(QStringLiteral("project_history.json")); }
    const AppSettings &settings() const { return m_settings; }
    HistoryStore &store() { return m_store; }
    const HistoryStore &store() const { return m_store; }

private:
    std::unique_ptr<ProjectFile> makeProject(int number) const
    {
        constexpr int kPhotos = 99;
        auto project = std::make_unique<ProjectFile>(m_settings, ProjectFile::TitleSlide::Create);
        QStringList paths;
        for (int photo = 0; photo < kPhotos; ++photo) {
            paths.append(QStringLiteral("/home/someone/Pictures/Holiday %1/IMG_%2.jpg")
                             .arg(number)
                             .arg(photo));
        }
        project->setFileName(QStringLiteral("/home/someone/Videos/Holiday %1.mp4").arg(number));
        const QVector<ProjectItem *> items = project->addFiles(paths, 3, 1);
        for (int photo = 0; photo < kPhotos; photo += 3) {
            CaptionStyle caption = items.at(photo)->caption();
            caption.text = QStringLiteral("Day %1 by the sea").arg(photo);
            items.at(photo)->setCaption(caption);
        }
        return project;
    }

    const AppSettings m_settings;
    QTemporaryDir m_folder;
    HistoryStore m_store;
};

} // namespace velmora
