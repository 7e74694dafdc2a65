// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "generator/encoding/VideoUtil.h"
#include "generator/pipeline/RenderCache.h"
#include "generator/sound/ProjectSound.h"

#include <QThread>

namespace velmora
{

/// Makes the sound track of a slideshow on a thread of its own, in a private folder of the cache
/// that goes with this object. Start it once.
class SoundPreparation : public QThread
{
    Q_OBJECT
public:
    /// @p length of the slideshow in ms.
    SoundPreparation(ProjectSound sound, qint64 length, QObject *parent = nullptr);
    /// Cancels and waits.
    ~SoundPreparation() override;

    void cancel() { m_context.cancelled = true; }

    // After the thread has ended.
    const QString &track() const { return m_track; } ///< A WAV file; empty on failure.
    const QString &errorText() const { return m_errorText; }

protected:
    void run() override;

private:
    void prepare();
    void removeIntermediates() const;

    const ProjectSound m_sound;
    const qint64 m_length;
    EncodingContext m_context;
    std::unique_ptr<RenderCache> m_cache;
    QString m_track;
    QString m_errorText;
};

} // namespace velmora
