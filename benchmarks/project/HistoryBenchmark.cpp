// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/AppSettings.h"
#include "project/documents/HistoryStore.h"

#include <QFileInfo>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

using namespace velmora;

namespace
{

const AppSettings settings;

/// A history with projects of 100 slides each, every third with a caption, saved to a file.
class SavedHistory
{
public:
    explicit SavedHistory(int projects) : m_store(path(), settings)
    {
        for (int i = 0; i < projects; ++i) {
            m_store.add(makeProject(i));
        }
        m_store.save();
    }
    QString path() const { return m_folder.filePath(QStringLiteral("project_history.json")); }
    const HistoryStore &store() const { return m_store; }

private:
    static std::unique_ptr<ProjectFile> makeProject(int number)
    {
        constexpr int kPhotos = 99;
        auto project = std::make_unique<ProjectFile>(settings, ProjectFile::TitleSlide::Create);
        QStringList paths;
        for (int photo = 0; photo < kPhotos; ++photo) {
            paths.append(QStringLiteral("/home/someone/Pictures/Holiday %1/IMG_%2.jpg")
                             .arg(number)
                             .arg(photo));
        }
        const QVector<ProjectItem *> items = project->addFiles(paths, 3, 1);
        for (int photo = 0; photo < kPhotos; photo += 3) {
            CaptionStyle caption = items.at(photo)->caption();
            caption.text = QStringLiteral("Day %1 by the sea").arg(photo);
            items.at(photo)->setCaption(caption);
        }
        return project;
    }

    QTemporaryDir m_folder;
    HistoryStore m_store;
};

void loadHistory(benchmark::State &state)
{
    const SavedHistory saved(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        HistoryStore history(saved.path(), settings);
        history.load();
        if (history.projects().size() != saved.store().projects().size()) {
            state.SkipWithError("The history was not read whole.");
            break;
        }
        state.PauseTiming();
        history.clear();
        state.ResumeTiming();
    }
    state.counters["MB"] = static_cast<double>(QFileInfo(saved.path()).size()) / 1e6;
}

void saveHistory(benchmark::State &state)
{
    const SavedHistory saved(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        if (!saved.store().save()) {
            state.SkipWithError("The history was not saved.");
            break;
        }
    }
}

BENCHMARK(loadHistory)->Arg(100)->Arg(2000)->Unit(benchmark::kMillisecond);
BENCHMARK(saveHistory)->Arg(100)->Arg(2000)->Unit(benchmark::kMillisecond);

} // namespace
