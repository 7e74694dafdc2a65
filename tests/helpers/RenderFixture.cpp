// SPDX-License-Identifier: GPL-3.0-or-later
#include "helpers/RenderFixture.h"

#include "generator/pipeline/RenderJob.h"
#include "helpers/Files.h"
#include "helpers/Words.h"
#include "project/slides/ProjectItemSimple.h"

#include <QCoreApplication>
#include <QDir>
#include <QEventLoop>
#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QProcess>
#include <QStandardPaths>
#include <QTimer>

#include <utility>

namespace velmora
{

namespace
{

constexpr char kDataFolder[] = "VELMORA_DATA_DIR";
constexpr int kLongestRender = 120'000; // ms

} // namespace

RenderFixture::RenderFixture() : m_oldDataFolder(qgetenv(kDataFolder))
{
    qputenv(kDataFolder, QFile::encodeName(path(QStringLiteral("data"))));
    QDir().mkpath(cacheFolder());
    QDir().mkpath(outputFolder());
}

RenderFixture::~RenderFixture()
{
    qputenv(kDataFolder, m_oldDataFolder);
}

QString RenderFixture::photo(const QString &name, int variant, const QSize &size) const
{
    QImage image(size, QImage::Format_RGB32);
    QPainter painter(&image);
    QLinearGradient gradient(0, 0, size.width(), size.height());
    gradient.setColorAt(0, QColor::fromHsv(variant * 67 % 360, 120, 230));
    gradient.setColorAt(1, QColor::fromHsv((variant * 67 + 90) % 360, 140, 90));
    painter.fillRect(image.rect(), gradient);
    painter.end();
    if (!image.save(path(name), nullptr, 95))
        qFatal("The picture could not be saved.");
    return path(name);
}

QString RenderFixture::sound(const QString &name, int seconds) const
{
    const QString tone = QStringLiteral("sine=frequency=440:duration=%1").arg(seconds);
    if (QProcess::execute(QStringLiteral("ffmpeg"), words("-v error -y -f lavfi -i")
                                                        << tone << path(name)) != 0)
        qFatal("The tone could not be made.");
    return path(name);
}

QString RenderFixture::file(const QString &name, const QByteArray &content) const
{
    if (!writeFile(path(name), content))
        qFatal("The file could not be written.");
    return path(name);
}

void RenderFixture::fakeTool(const char *variable, int call, const QString &action) const
{
    const QString counter = path(QStringLiteral("calls"));
    QFile::remove(counter);
    const QStringList orders{QStandardPaths::findExecutable(QStringLiteral("ffmpeg")), counter,
                             QString::number(call), action};
    qputenv(
        "VELMORA_FAKE_ENCODER",
        QFile::encodeName(file(QStringLiteral("orders"), orders.join(QLatin1Char('\n')).toUtf8())));
    const QString program = QStandardPaths::findExecutable(
        QStringLiteral("fakeencoder"), {QCoreApplication::applicationDirPath()});
    qputenv(variable, QFile::encodeName(program));
}

RenderRequest RenderFixture::request(const QStringList &photos, const QString &outputFile) const
{
    RenderRequest request;
    request.project = std::make_unique<ProjectFile>(settings, ProjectFile::TitleSlide::Omit);
    request.project->setResolution({160, 90});
    request.project->setFileName(outputFile);
    request.project->setFormat(QStringLiteral("mp4"));
    request.transitionSeconds = 1;
    for (const QString &photo : photos)
        request.project->insertItem(-1, new ProjectItemSimple(photo, 1, 27));
    return request;
}

RenderOutcome RenderFixture::run(RenderJob &job,
                                 const std::function<void(qint64 frame)> &onProgress)
{
    RenderOutcome outcome;
    QEventLoop loop;
    const auto end = [&](RenderOutcome::Kind kind) {
        outcome.kind = kind;
        ++outcome.endings;
        loop.quit();
    };
    QObject context;
    QObject::connect(&job, &RenderJob::progress, &context, [&](qint64 frame, qint64 count) {
        outcome.progress.append({frame, count});
        if (onProgress)
            onProgress(frame);
    });
    QObject::connect(&job, &RenderJob::stageChanged, &context,
                     [&](const QString &stage) { outcome.stages.append(stage); });
    QObject::connect(&job, &RenderJob::finished, &context, [&](const QString &fileName) {
        outcome.fileName = fileName;
        end(RenderOutcome::Finished);
    });
    QObject::connect(&job, &RenderJob::failed, &context, [&](const RenderError &error) {
        outcome.error = error;
        end(RenderOutcome::Failed);
    });
    QObject::connect(&job, &RenderJob::cancelled, &context, [&] { end(RenderOutcome::Cancelled); });
    QTimer::singleShot(kLongestRender, &loop, &QEventLoop::quit);
    QTimer::singleShot(0, &job, &RenderJob::start);
    loop.exec();
    QCoreApplication::processEvents(); // a second ending would come now
    return outcome;
}

RenderOutcome RenderFixture::render(RenderRequest request) const
{
    RenderJob job(std::move(request), settings, cacheFolder());
    return run(job);
}

QStringList RenderFixture::leftovers() const
{
    const auto all = QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot;
    QStringList found = QDir(cacheFolder()).entryList(all);
    const QStringList output = QDir(outputFolder()).entryList(all);
    for (const QString &name : output) {
        if (name.startsWith(QLatin1Char('.')) || name.contains(QLatin1String(".part")))
            found.append(name);
    }
    return found;
}

} // namespace velmora
