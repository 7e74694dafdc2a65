// SPDX-License-Identifier: GPL-3.0-or-later
// EditorBenchmark [SLIDES [MEGAPIXELS]]: opens a project of that many photos (2000 of 12 megapixels
// by default) with texts and a playlist in the editor page, scrolls it from end to end, edits all
// of it, and prints how long that took and how much memory it used. Run it without a display with
// QT_QPA_PLATFORM=offscreen.
#include "app/AppSettings.h"
#include "chrome/Theme.h"
#include "project/documents/HistoryStore.h"
#include "project/documents/ProjectFile.h"
#include "ui/editor/MainWindowWidget.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QRandomGenerator>
#include <QScrollBar>
#include <QTableView>
#include <QTemporaryDir>
#include <QThread>
#include <QUndoStack>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <filesystem>

using namespace velmora;

namespace
{

constexpr int kTracks = 50;

/// Measures how long events take, painting apart.
class MeasuringApplication : public QApplication
{
public:
    using QApplication::QApplication;

    bool notify(QObject *receiver, QEvent *event) override
    {
        const bool paints =
            event->type() == QEvent::Paint || event->type() == QEvent::UpdateRequest;
        QElapsedTimer timer;
        timer.start();
        const qint64 painted = m_painted;
        ++m_depth;
        const bool result = QApplication::notify(receiver, event);
        --m_depth;
        const qint64 time = timer.nsecsElapsed();
        if (paints) {
            m_painted = painted + time;
            m_longestPaint = std::max(m_longestPaint, time);
            ++m_paints;
        } else if (m_depth == 0) {
            m_longestEvent = std::max(m_longestEvent, time - (m_painted - painted));
        }
        return result;
    }

    void reset() { m_longestEvent = m_longestPaint = m_paints = 0; }
    double longestEvent() const { return static_cast<double>(m_longestEvent) / 1e6; } // ms
    double longestPaint() const { return static_cast<double>(m_longestPaint) / 1e6; } // ms
    qint64 paints() const { return m_paints; }

private:
    int m_depth = 0;
    qint64 m_painted = 0; // ns
    qint64 m_longestEvent = 0;
    qint64 m_longestPaint = 0;
    qint64 m_paints = 0;
};

/// MiB in use by this process, or at its most.
double memory(const char *key)
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith(key))
            return line.mid(line.indexOf(':') + 1).simplified().split(' ').first().toDouble() /
                   1024;
    }
    return 0;
}

/// Ten photos under as many names as are wanted.
QStringList makePhotos(const QString &folder, int count, double megapixels)
{
    constexpr int kDifferent = 10;
    const int height = static_cast<int>(std::sqrt(megapixels * 1e6 * 2 / 3));
    const QSize size(height * 3 / 2, height);
    QRandomGenerator random(1);
    QStringList photos;
    for (int i = 0; i < count; ++i) {
        const QString path = QStringLiteral("%1/img%2.jpg").arg(folder).arg(i);
        photos.append(path);
        if (i >= kDifferent) {
            std::filesystem::create_hard_link(photos.at(i % kDifferent).toStdString(),
                                              path.toStdString());
            continue;
        }
        QImage shapes(size / 60, QImage::Format_RGB32);
        for (int y = 0; y < shapes.height(); ++y) {
            for (int x = 0; x < shapes.width(); ++x)
                shapes.setPixel(x, y, random.generate());
        }
        shapes.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).save(path, "jpg", 85);
    }
    return photos;
}

void report(const char *what, double value, const char *unit)
{
    std::printf("%-46s %9.1f %s\n", what, value, unit);
}

void work(int milliseconds)
{
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < milliseconds) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
        QThread::msleep(1);
    }
}

void scroll(MeasuringApplication &application, QTableView &table, const char *name, int step)
{
    constexpr int kFrame = 16; // ms
    QScrollBar &bar = *table.verticalScrollBar();
    bar.setValue(0);
    work(200);
    application.reset();
    QElapsedTimer timer;
    timer.start();
    int late = 0;
    int frames = 0;
    while (bar.value() < bar.maximum() && timer.elapsed() < 20000) {
        QElapsedTimer frame;
        frame.start();
        QWheelEvent wheel(QPointF(200, 200), table.viewport()->mapToGlobal(QPoint(200, 200)),
                          QPoint(0, -step), QPoint(0, -step), Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(table.viewport(), &wheel);
        QCoreApplication::processEvents();
        ++frames;
        if (frame.elapsed() > kFrame)
            ++late;
        else
            QThread::msleep(static_cast<unsigned long>(kFrame - frame.elapsed()));
    }
    std::printf("%s: %d frames, %d of them longer than %d ms\n", name, frames, late, kFrame);
    report("  longest event apart from painting", application.longestEvent(), "ms");
    report("  longest painting", application.longestPaint(), "ms");
}

} // namespace

int main(int argc, char **argv)
{
    MeasuringApplication application(argc, argv);
    Theme::install(application);
    const QStringList arguments = QApplication::arguments();
    const int count = arguments.size() > 1 ? arguments.at(1).toInt() : 2000;
    const double megapixels = arguments.size() > 2 ? arguments.at(2).toDouble() : 12;
    const QTemporaryDir folder;
    qputenv("VELMORA_DATA_DIR", folder.path().toUtf8());
    const QStringList photos = makePhotos(folder.path(), count, megapixels);
    AppSettings settings;
    settings.folder = folder.path();
    HistoryStore history(folder.filePath(QStringLiteral("history.json")), settings);
    const QString document = folder.filePath(QStringLiteral("project.json"));
    {
        ProjectFile project(settings, ProjectFile::TitleSlide::Create);
        const auto slides = project.addFiles(photos, 3, 27);
        for (ProjectItem *slide : slides) {
            CaptionStyle caption = slide->caption();
            caption.text = QStringLiteral("A text of some length on every slide");
            slide->setCaption(caption);
        }
        AudioItemList audio;
        for (int i = 0; i < kTracks; ++i)
            audio.items.append(
                {folder.filePath(QStringLiteral("track%1.mp3").arg(i)), QStringLiteral("0:03:00")});
        project.setAudio(audio);
        project.saveToFile(document);
    }

    MainWindowWidget page(settings, history);
    page.resize(1440, 804);
    page.show();
    work(500);
    report("memory before opening", memory("VmRSS"), "MiB");

    QElapsedTimer timer;
    timer.start();
    QString error;
    const std::unique_ptr<ProjectFile> project =
        ProjectFile::loadFromFile(document, settings, &error);
    if (!project) {
        std::fprintf(stderr, "%s\n", qPrintable(error));
        return 1;
    }
    application.reset();
    page.setProject(project.get());
    while (application.paints() == 0)
        QCoreApplication::processEvents();
    report("from the document to the first painting", static_cast<double>(timer.elapsed()), "ms");
    work(1500);

    auto &table = *page.findChild<QTableView *>(QStringLiteral("tableView"));
    scroll(application, table, "scrolling 100 px a frame", 120);
    scroll(application, table, "scrolling 1000 px a frame", 1200);
    work(500);
    report("memory after scrolling", memory("VmRSS"), "MiB");

    const auto edit = [&](const char *what, auto change) {
        application.reset();
        timer.restart();
        change();
        QCoreApplication::processEvents();
        report(what, static_cast<double>(timer.nsecsElapsed()) / 1e6, "ms");
    };
    edit("selecting all", [&] { table.selectAll(); });
    edit("setting the time of all", [&] { page.editor().setTime(project->items(), 5); });
    edit("turning all", [&] { page.editor().rotate(project->items(), 90); });
    edit("moving half to the end",
         [&] { page.editor().moveSlides(project->items().mid(1, count / 2), count + 1); });
    edit("undoing that", [&] { page.editor().undoStack()->undo(); });
    edit("deleting all", [&] { page.editor().removeSlides(project->items()); });
    edit("undoing that", [&] { page.editor().undoStack()->undo(); });
    report("most memory", memory("VmHWM"), "MiB");
    page.setProject(nullptr);
    return 0;
}
