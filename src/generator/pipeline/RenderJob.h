// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "generator/pipeline/RenderError.h"
#include "generator/pipeline/RenderRequest.h"

#include <QObject>

#include <memory>

namespace velmora
{

class GeneratorThread;
struct AppSettings;

/// A whole render from request to finished file, as the worker and the command line run it:
/// checks the inputs, locks the output, runs a GeneratorThread and puts the result in place.
/// Lives on a thread with an event loop. Exactly one of finished(), failed() and cancelled() is
/// emitted, once.
class RenderJob : public QObject
{
    Q_OBJECT
public:
    /// @p cacheFolder receives the private cache of the render.
    RenderJob(RenderRequest request, const AppSettings &settings, const QString &cacheFolder,
              QObject *parent = nullptr);
    ~RenderJob() override;

    void start(); ///< Checks run off the calling thread; results come by signals.
    void setPaused(bool paused);
    void cancel();

signals:
    /// At most ten times a second; @p frame never decreases and ends at @p count.
    void progress(qint64 frame, qint64 count);
    void stageChanged(const QString &stage);
    void finished(const QString &fileName);
    void failed(const velmora::RenderError &error);
    void cancelled();

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace velmora
