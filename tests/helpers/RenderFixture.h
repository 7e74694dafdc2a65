// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/AppSettings.h"
#include "generator/pipeline/RenderError.h"
#include "generator/pipeline/RenderRequest.h"

#include <QPair>
#include <QSize>
#include <QStringList>
#include <QTemporaryDir>
#include <QVector>

#include <functional>

namespace velmora
{

class RenderJob;

/// How a render ended, and what it told meanwhile.
struct RenderOutcome {
    enum Kind { Nothing, Finished, Failed, Cancelled };
    Kind kind = Nothing;
    int endings = 0; ///< Final signals.
    QString fileName;
    RenderError error;
    QVector<QPair<qint64, qint64>> progress; ///< (frame, count)
    QStringList stages;
};

/// A temporary world for renders: input files, a data folder of its own, a cache and an output
/// folder. The program's data folder is redirected as long as the object lives.
class RenderFixture
{
public:
    RenderFixture();
    ~RenderFixture();

    QString path(const QString &name) const { return m_folder.filePath(name); }
    /// Its name is odd, as that of a user's folder may be.
    QString cacheFolder() const { return path(QStringLiteral("it's the 100%d cache ü 写真")); }
    QString outputFolder() const { return path(QStringLiteral("out")); }
    QString output(const QString &name) const { return outputFolder() + QLatin1Char('/') + name; }

    /// A smooth picture whose colours depend on @p variant, in the format of the name's suffix.
    QString photo(const QString &name, int variant, const QSize &size = {200, 150}) const;
    /// A tone of @p seconds, made by FFmpeg in the format of the name's suffix.
    QString sound(const QString &name, int seconds) const;
    /// A file with these bytes.
    QString file(const QString &name, const QByteArray &content) const;

    /// Has renders start, in place of the program that the environment variable names, one that is
    /// FFmpeg but does @p action in its run number @p call; see tests/fakes/fakeencoder.cpp, which
    /// the test must depend on.
    void fakeTool(const char *variable, int call, const QString &action) const;

    /// A request for a video of 160x90 with one slide of a second per photo, no title slide, and
    /// transitions of a second.
    RenderRequest request(const QStringList &photos, const QString &outputFile) const;

    /// Runs the job to its end; @p onProgress is called with each progress.
    static RenderOutcome run(RenderJob &job,
                             const std::function<void(qint64 frame)> &onProgress = {});
    /// Renders @p request in the fixture's cache.
    RenderOutcome render(RenderRequest request) const;

    /// Files and folders below the cache folder, and hidden ones in the output folder.
    QStringList leftovers() const;

    AppSettings settings;

private:
    QTemporaryDir m_folder;
    QByteArray m_oldDataFolder;
};

} // namespace velmora
