// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "generator/encoding/VideoUtil.h"
#include "generator/pipeline/RenderCache.h"
#include "generator/sound/ProjectSound.h"

#include <QThread>

#include <atomic>
#include <memory>

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

    /// The track is there, or cannot be made. Comes before finished().
    bool isDone() const { return m_done; }
    // Empty until it is done.
    QString track() const { return m_done ? m_track : QString(); } ///< A WAV file.
    QString errorText() const { return m_done ? m_errorText : QString(); }

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
    std::atomic_bool m_done{false}; ///< Hands the members above over to the GUI thread.
};

} // namespace velmora
